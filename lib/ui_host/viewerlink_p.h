#pragma once

#include <QStringList>

namespace uiutils {

/// Links the installed viewer of PDF files below UIUTILS_ROOT, where reports look for it; nothing while that is not set,
/// where there is a viewer of the root's own, or where none is installed. Returns one sentence if the link cannot be
/// made.
QStringList placeViewer();

} // namespace uiutils
