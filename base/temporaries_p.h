#pragma once

#include <QLatin1String>
#include <QString>

/// Files and folders that stand beside a target while it is being made. Their makers hold a lock on them, which goes
/// with the process however that ends: what has none was left behind.
namespace uiutils {

/// A name in `folder` that nobody else has, with this behind it.
inline const QLatin1String temporaryFileEnd(".tmp");
inline const QLatin1String temporaryFolderEnd(".dir");
QString newTemporaryPath(const QString& folder, QLatin1String end);

/// Takes the lock of what has just been made. False when it was taken for left behind meanwhile; true where the file
/// system knows no locks, and then nobody cleans there.
bool lockTemporary(int fd);

/// Removes the file at `path`, unless its maker lives and holds its lock: false then. What cannot be removed stays.
bool removeUnlessHeld(const QString& path);

/// Removes what a killed process or a power cut has left in `folder`. What cannot be removed stays.
void removeStaleTemporaries(const QString& folder);

} // namespace uiutils
