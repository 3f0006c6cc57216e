#pragma once

#include <QLatin1String>
#include <QString>

/// Files and folders that stand beside a target while it is being made. Their makers hold a lock on them, which goes
/// with the process however that ends: what has none was left behind. A folder also has a mark in it, a file that
/// nobody else makes: reports may lie in a folder that is called the same, and stay.
///
/// What is removed is named by the descriptor of the folder that holds it. Links are never followed, and what belongs
/// to another user, or lies on another device, stays.
namespace uiutils {

/// A name that nobody else has in its folder, with this behind it.
inline const QLatin1String temporaryFileEnd(".tmp");
inline const QLatin1String temporaryFolderEnd(".dir");
QString newTemporaryName(QLatin1String end);

/// Takes the lock of what has just been made. False when it was taken for left behind meanwhile; true where the file
/// system knows no locks, and then nobody cleans there.
bool lockTemporary(int fd);

/// Puts the mark into a folder that has just been made. False, with the reason in errno, when that fails.
bool markTemporaryFolder(int folder);

/// Removes the folder `name` of `parent`, which `folder` is, with everything in it. What cannot be removed stays.
void removeTemporaryFolder(int parent, const char* name, int folder);

/// Removes the file at `path`, unless its maker lives and holds its lock. False then, and when that cannot be found
/// out, with the reason in errno. What cannot be removed stays.
bool removeUnlessHeld(const QString& path);

/// Removes what a killed process or a power cut has left in `folder`. What cannot be removed stays.
void removeStaleTemporaries(const QString& folder);

} // namespace uiutils
