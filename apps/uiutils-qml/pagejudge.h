#pragma once

#include "options.h"

#include "check/finding.h"

#include <QVector>

namespace uiutils::qmltool {

/// What can be told of the page before it runs, over the services that run, and of the service files in the folders,
/// if there are any.
QVector<check::Finding> judgePage(const Options& options, const QStringList& serviceFolders);

/// Prints what was found before the page ran, and while it ran what nothing else explains. Returns the exit code.
int tell(QVector<check::Finding> before, const QVector<check::Finding>& running, const Options& options);

} // namespace uiutils::qmltool
