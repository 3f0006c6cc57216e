#pragma once

#include "valueconversion_p.h"

namespace kiv::embedded {

/// Converts a value from a client and checks it against the item's limits, form and choices.
Conversion convertForItem(const ItemDescription& item, unsigned type, const QVariant& value);

} // namespace kiv::embedded
