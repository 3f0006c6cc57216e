#pragma once

#include <kiv/kiv_export.h>

#include <QString>

/// How full the unit's file systems are, and which drives are there.
///
/// Folders are paths on disk; one that does not exist stands for the nearest one above it that does. **Thread**: that
/// of the screens. No call blocks longer than the file system takes to answer.
class KIV_EXPORT FileSystemUsage
{
public:
    FileSystemUsage() = delete;

    /// What has to be free for a file to be saved, in bytes.
    static constexpr qint64 minimumFree = qint64(1024) * 1024;

    /// Whether there is room to save a file in `directory`. If not, the user is told so in a dialog with the text
    /// `message`. True when the file system does not say: whoever writes finds out.
    static bool checkAndNotifyBeforeSave(const QString& directory, const QString& message);

    /// How much of what users may fill is in use, 0 to 100; 0 when the file system does not say.
    static double percentageUsed(const QString& directory);

    /// Whether a drive is mounted at `path`, an instrument's mount point such as "/mnt/usb/", with or without the slash
    /// behind; a folder on a drive is none. False for an empty or relative path. The back end answers. Without one, or
    /// from one that does not know, the system's own table of mounts does, with the path as it stands or where it leads
    /// as a link. Nobody is told when the answer changes: ask before each use.
    static bool isMounted(const QString& path);
};
