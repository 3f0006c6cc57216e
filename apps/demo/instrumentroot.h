#pragma once

#include <QString>

namespace uiutils::demo {

/// Creates what the demo needs in the folder that stands for the instrument's disk. The viewer of PDF files becomes a
/// link to the program `viewer`, unless that is empty or the folder has a viewer of its own that is not a link.
///
/// False when the folder cannot be used; `error` then names the file, what happened and what to do.
bool prepareInstrumentRoot(const QString& root, const QString& viewer, QString* error);

/// Creates the folder if it is missing; false, with the reason in `error`, on failure.
bool makeFolder(const QString& folder, QString* error);

} // namespace uiutils::demo
