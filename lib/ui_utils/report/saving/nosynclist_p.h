#pragma once

#include <QString>
#include <QStringList>

/// The reports that the cloud leaves alone: instrument paths of the files, each with that of the record kept of it,
/// which has "json" in place of the last suffix. One path a line; several processes may edit the list.
///
/// Changes are durable, and the base manager hears of them. Each returns false, with the reason in `error`, when the
/// list has not been changed: it cannot be read, locked or written, or a path holds a line feed. A list that cannot be
/// read, or has more than largestNoSyncList bytes, is not taken for an empty one. Others are waited for half a second.
namespace uiutils {

/// Bytes; nothing makes it larger.
constexpr qint64 largestNoSyncList = 1024 * 1024;

/// In one edit. Where a record's path is that of a JSON report which is there and is synced, it is left out.
bool addToNoSyncList(const QStringList& paths, QString* error);
/// In one edit. The record's path stays as long as it stands for another report, too: one of JSON, or of a further
/// format. A report that was compressed, or is not any more, takes the path of its former file along.
bool removeFromNoSyncList(const QStringList& paths, QString* error);
/// In place of all that stood there, also where that cannot be used, with a line in the log; each path once.
bool replaceNoSyncList(const QStringList& paths, QString* error);

} // namespace uiutils
