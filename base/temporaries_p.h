#pragma once

#include <QLatin1String>
#include <QString>

/// Files and folders beside a target while it is being written. Their makers hold a lock on them, which ends with the
/// process in any case: one without a lock is stale. A folder also contains a mark, a file that nothing else creates: a
/// folder of reports that has the same name stays.
///
/// Every removal goes through the descriptor of the containing folder. Links are never followed, and what belongs to
/// another user, or is on another device, stays.
namespace uiutils {

/// A name with this suffix that is unique in its folder.
inline const QLatin1String temporaryFileEnd(".tmp");
inline const QLatin1String temporaryFolderEnd(".dir");
QString newTemporaryName(QLatin1String end);

/// Locks what has just been created. False when another process has taken it for stale meanwhile; true if the file
/// system has no locks, because then nothing is cleaned there.
bool lockTemporary(int fd);

/// Creates the mark in a new folder. False, with the reason in errno, on failure.
bool markTemporaryFolder(int folder);

/// Removes the folder `name` of `parent`, opened as `folder`, with everything in it. What cannot be removed stays.
void removeTemporaryFolder(int parent, const char* name, int folder);

/// Removes the file at `path`, unless its maker lives and holds its lock. False then, and when that cannot be found
/// out, with the reason in errno. What cannot be removed stays.
bool removeUnlessHeld(const QString& path);

/// Removes what killed processes or a power cut left in `folder`. What cannot be removed stays.
void removeStaleTemporaries(const QString& folder);

} // namespace uiutils
