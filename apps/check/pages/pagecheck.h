#pragma once

#include "check/finding.h"
#include "names/itemfacts.h"

#include <QStringList>
#include <QVector>

namespace uiutils::check {

/// What pages are checked beside.
struct PageCheck
{
    /// Folders of QML modules, besides those of Qt and of this library.
    QStringList importFolders;
    /// The items of all services; without any, names of items are not judged.
    QVector<names::ItemFacts> items;
};

/// What is wrong in QML pages, and in the files that they use: components beside them, what they import from folders
/// and from modules below the import folders. Each file is checked once. What cannot be known before a page runs is not
/// complained about.
QVector<Finding> checkPages(const QStringList& pages, const PageCheck& surroundings);

} // namespace uiutils::check
