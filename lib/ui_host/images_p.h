#pragma once

#include <QStringList>

namespace uiutils {

/// Copies the status icons and the logo of reports below UIUTILS_ROOT, where they are missing; nothing while it is not
/// set. Returns one sentence for each image that could not be copied.
QStringList placeImages();

} // namespace uiutils
