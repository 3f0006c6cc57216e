#pragma once

#include <QString>

/// The unit's own storage and the USB stick, and how users read the paths on them. Paths are the instrument's.
namespace uiutils::instrument {

/// Whether the path lies on the stick.
bool isOnUsb(const QString& path);

/// Where the copy of a saved file lies on the stick.
QString usbPath(const QString& path);

/// Whether the drive of the path can be written to now. Without a stick, the folder of its mount point is the unit's,
/// and nobody would find there what was to go with the stick.
bool isDriveThere(const QString& path);

/// The path without the "copy:" or "cut:" that a clipboard puts in front.
QString withoutClipboardMark(const QString& path);

/// The path as messages show it: without a clipboard's mark, with "Internal:" for "/cust/public" and "USB:" for
/// "/mnt/usb".
QString shownPath(const QString& path);

/// The folder of the clean path as the notice of a saved report shows it: relative to the unit's public folder, "USB"
/// anywhere on the stick.
QString shownFolderOf(const QString& path);

} // namespace uiutils::instrument
