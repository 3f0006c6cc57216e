#pragma once

#include <kiv/kiv_export.h>

#include <QString>

/// How full the unit's file systems are, and which drives are there.
///
/// Folders are paths on disk; a folder that does not exist stands for its nearest existing parent. **Thread**: the GUI
/// thread. No call blocks longer than the file system takes to answer.
class KIV_EXPORT FileSystemUsage
{
public:
    FileSystemUsage() = delete;

    /// Minimum free space for saving a file, in bytes.
    static constexpr qint64 minimumFree = qint64(1024) * 1024;

    /// Whether there is space to save a file in `directory`. If not, a dialog with the text `message` notifies the
    /// user. True when the file system gives no answer: the write itself will then fail or succeed.
    [[nodiscard]] static bool checkAndNotifyBeforeSave(const QString& directory, const QString& message);

    /// How much of the space that is available to users is in use, 0 to 100; 0 when the file system gives no answer.
    static double percentageUsed(const QString& directory);

    /// Whether a drive is mounted at `path`, an instrument's mount point such as "/mnt/usb/", with or without the final
    /// slash; false for a folder on a drive, and for an empty or relative path. The back end answers. Without a back
    /// end, or if it does not know, the system's mount table answers, for the path as given and for the target of a
    /// link. Changes are not signalled: call this before each use.
    static bool isMounted(const QString& path);
};
