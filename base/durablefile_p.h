#pragma once

#include <QByteArray>
#include <QString>

namespace uiutils {

/// Writes `contents` to `path` so that the file always holds either its old contents or all of the new ones, even after
/// a crash: a new file in the same folder is written, checked, synced and renamed over the target, and the folder is
/// synced. A link at `path` is replaced, never followed. The folder must exist. A replaced file passes on its
/// permissions, where the file system knows any; a new one gets those that the umask allows.
///
/// The new file has a unique name, or `temporary`, a path in the same folder: an existing file of that name is removed,
/// and is an error while another process writes it. Files that earlier calls left in the folder because the process was
/// killed or the power failed are removed first.
///
/// Returns false when a step failed or the path contains a NUL character, and leaves nothing beside the target;
/// `error`, if given, names the file, the step and the reason. The target is then unchanged, except after a failure of
/// the last steps: it holds all of `contents` when closing it failed, and when the folder cannot be synced, in which
/// case a power cut may undo the replacement.
[[nodiscard]] bool writeFileDurably(const QString& path, const QByteArray& contents, QString* error = nullptr,
        const QString& temporary = QString());

/// The result of writing a file: `Taken` when another file exists at the path, which then stays.
enum class NewFile { Written, Taken, Failed };

/// The same for a file that must not replace another one, even one that appears during the write.
[[nodiscard]] NewFile writeNewFileDurably(const QString& path, const QByteArray& contents, QString* error = nullptr);

/// Makes what was done to the name of `member` in its folder survive a power cut: its creation, a renaming, its
/// removal. True also on file systems that cannot sync, which keep it in other ways, or not at all. False, with the
/// reason in errno, if that fails.
[[nodiscard]] bool syncNameOf(const QString& member);

/// Writes a file that need not survive a power cut, without waiting for the disk: readers see it complete or not at
/// all, and a link at `path` is replaced. What killed processes left in the folder stays there.
bool writeFileForNow(const QString& path, const QByteArray& contents);

/// Creates the folder and its missing parents so that a power cut cannot remove them together with what is written in
/// them. False when the folder does not exist afterwards: one that cannot be synced is removed again, so that no file
/// in it is reported as safe.
bool makeFolderDurably(const QString& path);

} // namespace uiutils
