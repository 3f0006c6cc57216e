#pragma once

#include "requests_p.h"

namespace kiv::embedded {

/// Sets a batch of settings, a JSON object of values by item name or id: all of them, or none. They are looked up in
/// the settings of the service first, then in those of the others, in the order of the services' names.
Outcome applyConfiguration(ServiceData& service, const QString& argument);

/// Stores the service's settings under a name that the user chose: the part of the argument before its last comma. The
/// number after that comma has no effect here.
Outcome saveConfiguration(ServiceData& service, const QString& argument);

} // namespace kiv::embedded
