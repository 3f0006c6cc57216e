#pragma once

#include <QString>

namespace uiutils {

/// The notice that a report was saved at the instrument path: its name without suffixes, and its folder, which is
/// relative to the unit's public folder, and "USB" anywhere on a USB drive.
QString savedMessage(const QString& path);

/// Puts the notice into the tray.
void postSavedNotice(const QString& path);

} // namespace uiutils
