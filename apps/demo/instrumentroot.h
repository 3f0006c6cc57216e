#pragma once

#include <QString>

namespace uiutils::demo {

/// Makes the folder that stands for the instrument's disk, with the status icons and the logo in their place;
/// what is there already and right is left alone. The viewer of PDF files is linked to the program `viewer`, unless
/// that is empty or the folder has a viewer of its own, which is no link.
///
/// False when it cannot be used; `error` then says which file, what happened and what to do.
bool prepareInstrumentRoot(const QString& root, const QString& viewer, QString* error);

/// Makes the folder when it is missing; false, with the reason in `error`, when it cannot be made.
bool makeFolder(const QString& folder, QString* error);

} // namespace uiutils::demo
