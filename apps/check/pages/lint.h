#pragma once

#include "check/finding.h"
#include "check/pages/pagescope.h"

#include <QString>
#include <QStringList>
#include <QVector>

namespace uiutils::check {

/// Where Qt's own checker of QML files is; empty if it is not installed.
QString lintProgram();

/// What Qt's checker says of a file, in our words: without what is said of style, and without what is false where names
/// come from services. `isPage`: whether the file was named, so that nothing around it brings names along.
QVector<Finding> lint(const QString& program, const PageScope& scope, const QStringList& importFolders, bool isPage);

/// The same of what the checker has written.
QVector<Finding> findingsOfLint(const QString& output, const PageScope& scope, bool isPage);

} // namespace uiutils::check
