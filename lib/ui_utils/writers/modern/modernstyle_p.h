#pragma once

#include <QString>

namespace uiutils {

/// The style sheet of a modern page, with the status icons inside: for screens of any width, light and dark, and for
/// paper. An icon that cannot be read is left out; its word remains.
QString modernStyleSheet(bool isLandscape);

} // namespace uiutils
