#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/// The reports that the cloud does not sync: instrument paths of the files, each with the path of its record, which has
/// "json" in place of the last suffix. One path per line; several processes may edit the list.
///
/// Changes are durable, and the base manager is notified of them. Each function returns false, with the reason in
/// `error`, if the list was not changed: it cannot be read, locked or written, or a path contains a line feed. A list
/// that cannot be read, or has more than largestNoSyncList bytes, does not count as empty. The maximum wait for other
/// processes is half a second.
namespace uiutils {

/// In bytes; no function here makes the list larger.
constexpr qint64 largestNoSyncList = qint64(1024) * 1024;

/// The paths in the list, in its order; none if there is no list yet. Nothing, with the reason in `error`, if the list
/// cannot be used.
std::optional<QStringList> noSyncList(QString* error);
/// In one edit. Leaves out the path of a record if it is also that of an existing JSON report that is synced.
bool addToNoSyncList(const QStringList& paths, QString* error);
/// In one edit. The path of the record stays as long as it also stands for another report: a JSON report, or one in a
/// further format. If a report was compressed meanwhile, or uncompressed, the path of its former file is removed too.
bool removeFromNoSyncList(const QStringList& paths, QString* error);
/// Replaces the complete list, each path once. A list that cannot be used is replaced too, with a line in the log.
bool replaceNoSyncList(const QStringList& paths, QString* error);

} // namespace uiutils
