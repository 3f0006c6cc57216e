#pragma once

#include "core/uiutils_export.h"

namespace uiutils {

/// Registers the library's types with QML under `uri`, version 1.0. The QML module's plugin calls it. Only hosts whose
/// pages cannot find the module call it, once, before they load a page: QML rejects a module whose name is taken.
UIUTILS_EXPORT void registerTypes(const char* uri = "UiUtils");

} // namespace uiutils
