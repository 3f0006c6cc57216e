#pragma once

#include <QByteArray>
#include <QString>

namespace uiutils {

/// Writes `contents` to `path` so that, whatever happens meanwhile, the file holds either what it held before or all
/// of `contents`: a new file in the same folder is written, checked, synced and renamed over the target, and the
/// folder is synced. A link at `path` is replaced, never followed. The folder must exist. A file that is replaced hands
/// its permissions on, where the file system knows any; a new one gets what the umask leaves.
///
/// The new file has a name of its own that nobody else has, or `temporary`, a path in the same folder; a file that lies
/// there goes, and is an error while another writes it. What an earlier call has left in the folder, when its process
/// was killed or the power went, goes first.
///
/// Returns false when any step failed or the path holds a NUL character, with nothing left beside the target; `error`,
/// if given, says which file, which step and why. The target is then untouched, but for the last steps: it holds all of
/// `contents` when the system has trouble closing it, and when the folder cannot be synced, which may forget that after
/// a power cut.
[[nodiscard]] bool writeFileDurably(const QString& path, const QByteArray& contents, QString* error = nullptr,
        const QString& temporary = QString());

/// What became of a file that was to be written: `Taken` when another lies there, which then stays.
enum class NewFile { Written, Taken, Failed };

/// The same for a file that is not to take another's place, also not that of one that came while it was written.
[[nodiscard]] NewFile writeNewFileDurably(const QString& path, const QByteArray& contents, QString* error = nullptr);

/// Writes a file that need not outlive a power cut, and so takes no time for the disk: whole or not at all for whoever
/// reads it, and a link at `path` is replaced. What killed processes left in the folder stays for others to clean.
bool writeFileForNow(const QString& path, const QByteArray& contents);

/// Makes the folder, and those above it that are missing, so that a power cut does not take it away together with what
/// is written in it. False when there is none then: one that cannot be synced is removed again, so that no file in it
/// is told to be safe.
bool makeFolderDurably(const QString& path);

} // namespace uiutils
