#pragma once

#include "check/finding.h"
#include "names/itemfacts.h"

#include <QStringList>
#include <QVector>

namespace uiutils::check {

/// What is wrong in service files: those named, and all of the folders named. Files that are used together are checked
/// together: their services may name each other's items. `facts`, which may be null, receives the items of every
/// document that can be parsed at all, so that pages can be checked beside wrong files.
QVector<Finding> checkServices(const QStringList& filesOrFolders, QVector<names::ItemFacts>* facts);

} // namespace uiutils::check
