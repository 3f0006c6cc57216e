#pragma once

#include "core/uiutils_export.h"

namespace uiutils {

/// Registers the library's types with QML under `uri`, version 1.0. The QML module's plugin calls it. Only hosts whose
/// pages do not find the module call it, once, before they load a page: QML refuses a module whose name has been taken.
UIUTILS_EXPORT void registerTypes(const char* uri = "UiUtils");

} // namespace uiutils
