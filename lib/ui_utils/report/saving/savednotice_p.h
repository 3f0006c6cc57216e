#pragma once

#include <QString>

namespace uiutils {

/// What the user is told of a report that was saved at the instrument path: its name without suffixes, and the folder,
/// below the instrument's public one without that in front, "USB" anywhere on a stick.
QString savedMessage(const QString& path);

/// Puts it into the tray.
void postSavedNotice(const QString& path);

} // namespace uiutils
