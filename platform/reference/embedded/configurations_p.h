#pragma once

#include "requests_p.h"

namespace kiv::embedded {

/// Sets a batch of settings, a JSON object of values by item name or id: all of them, or none. They are looked up among
/// the settings of the service and then of the others, in the order of their names.
Outcome applyConfiguration(ServiceData& service, const QString& argument);

/// Stores the service's settings under a name of the user's: what stands before the last comma of the argument. The
/// number behind that comma does not concern where they are stored.
Outcome saveConfiguration(ServiceData& service, const QString& argument);

} // namespace kiv::embedded
