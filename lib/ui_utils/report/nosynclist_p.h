#pragma once

#include <QString>
#include <QStringList>

/// The reports that the cloud leaves alone: instrument paths of the files, each with that of the record kept of it,
/// which has "json" in place of the last suffix. One path a line; several processes may edit the list.
///
/// Changes are durable, and the base manager hears of them. Each returns false, with the reason in `error`, when the
/// list has not been changed: it cannot be read, locked or written, or a path holds a line feed. A list that cannot be
/// read is not taken for an empty one.
namespace uiutils {

bool addToNoSyncList(const QString& path, QString* error);
/// The record's path stays as long as it stands for another report, too: one of JSON, or of a further format.
bool removeFromNoSyncList(const QString& path, QString* error);
/// In place of all that stood there; each path once.
bool replaceNoSyncList(const QStringList& paths, QString* error);

} // namespace uiutils
