#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

namespace uiutils::servicetexts {

/// Where services say a text.
struct Uses
{
    /// In words for translators, such as "Label of :config:otdr:setup:mode:".
    QStringList places;
    /// The ids of the items that say it.
    QStringList ids;
};

/// What services say to people, each text once.
using ServiceTexts = QMap<QString, Uses>;

/// The service files in folders, and those that are named themselves.
QStringList serviceFilesIn(const QStringList& foldersAndFiles);

/// The labels, choices, units and errors in service files. What has no letter reads the same in every language and is
/// left out. Adds a sentence to `problems` for each file that cannot be read; what is wrong inside one is left out.
ServiceTexts textsOf(const QStringList& files, QStringList* problems);

} // namespace uiutils::servicetexts
