#pragma once

#include "core/uiutils_export.h"

#include <QString>

namespace uiutils {

/// The path on this machine's disk of an instrument path, for what an application reads and writes by itself.
///
/// On an instrument both are the same. Where the environment variable UIUTILS_ROOT names a folder, paths below /cust,
/// /mnt/usb and /base are below that folder. Everything in the library takes, keeps and shows the instrument's form;
/// call this only where a file is opened.
UIUTILS_EXPORT QString diskPath(const QString& path);

} // namespace uiutils
