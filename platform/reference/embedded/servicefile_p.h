#pragma once

#include "servicedescription.h"

#include <optional>

namespace kiv::embedded {

/// Reads and checks a service file. Returns nothing, with file, place and reason in `problem`, when it cannot be used.
std::optional<ServiceDescription> readServiceFile(const QString& path, QString* problem);

} // namespace kiv::embedded
