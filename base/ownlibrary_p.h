#pragma once

#include <QFunctionPointer>
#include <QString>

namespace uiutils {

/// A function that a library exports which belongs to the own file and is loaded when it is first needed: `library`, in
/// the folder `folder` beside the own file. Null, with `error` set, if there is no such library or function. The
/// library stays loaded.
QFunctionPointer ownLibraryFunction(const char* folder, const char* library, const char* function, QString* error);

} // namespace uiutils
