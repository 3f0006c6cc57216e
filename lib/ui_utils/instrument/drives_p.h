#pragma once

#include <QString>

/// The unit's own storage and the USB drive, and how users read the paths on them. Paths are the instrument's.
namespace uiutils::instrument {

/// Whether the path is on the USB drive.
bool isOnUsb(const QString& path);

/// The path of the copy of a saved file on the USB drive.
QString usbPath(const QString& path);

/// Whether the drive of the path is there now. Without a USB drive, the folder of its mount point is on the unit, where
/// nobody would look for what was to be on the drive.
bool isDriveThere(const QString& path);

/// The path without the "copy:" or "cut:" that the clipboard puts in front.
QString withoutClipboardMark(const QString& path);

/// The path as messages show it, on one line: without the clipboard's mark, with "Internal:" for "/cust/public" and
/// "USB:" for "/mnt/usb", and without controls that turn the direction of text.
QString shownPath(const QString& path);

/// The folder of the clean path as the notice of a saved report shows it: relative to the unit's public folder, "USB"
/// anywhere on the USB drive.
QString shownFolderOf(const QString& path);

} // namespace uiutils::instrument
