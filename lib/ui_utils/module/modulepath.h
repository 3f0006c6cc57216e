#pragma once

#include "core/uiutils_export.h"

#include <QString>

namespace uiutils {

/// The folder to add to an engine's import path so that pages find the QML modules that were installed with this
/// library. It is found from the place of the library's file: in any prefix, also one that was moved, and in a build
/// folder. Empty when the modules are not installed.
UIUTILS_EXPORT QString qmlImportPath();

} // namespace uiutils
