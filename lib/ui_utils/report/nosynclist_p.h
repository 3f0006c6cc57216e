#pragma once

#include <QString>
#include <QStringList>

/// The reports that the cloud leaves alone: instrument paths of the files, each with that of the record kept of it,
/// which has "json" in place of the last suffix.
namespace uiutils {

/// The list as it is stored; empty without one.
QStringList noSyncList();
/// The list with or without a report, every path in it once.
QStringList withReport(QStringList list, const QString& path);
QStringList withoutReport(QStringList list, const QString& path);

/// Stores the list durably and tells the base manager. False, with a line in the log, when it cannot be stored.
bool writeNoSyncList(const QStringList& list);

} // namespace uiutils
