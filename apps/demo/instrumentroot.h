#pragma once

#include <QString>

namespace uiutils::demo {

/// Creates what the demo needs in the folder that stands for the instrument's disk.
///
/// False when the folder cannot be used; `error` then names the file, what happened and what to do.
bool prepareInstrumentRoot(const QString& root, QString* error);

/// Creates the folder if it is missing; false, with the reason in `error`, on failure.
bool makeFolder(const QString& folder, QString* error);

} // namespace uiutils::demo
