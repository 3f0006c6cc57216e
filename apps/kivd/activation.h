#pragma once

#include "options.h"

namespace uiutils::kivd {

/// Writes a file for each service that lets the bus start this program. Returns the exit status, having complained of
/// what could not be written.
int writeActivationFiles(const QStringList& services, const Options& options);

} // namespace uiutils::kivd
