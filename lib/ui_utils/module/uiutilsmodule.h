#pragma once

#include "core/uiutils_export.h"

namespace uiutils {

/// Registers the library's types with QML under `uri`, version 1.0. Hosts call it once before they load a page; the
/// QML module's plugin calls it for them.
UIUTILS_EXPORT void registerTypes(const char* uri = "UiUtils");

} // namespace uiutils
