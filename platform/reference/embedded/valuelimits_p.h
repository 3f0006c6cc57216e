#pragma once

#include "valueconversion_p.h"

namespace kiv::embedded {

/// Converts what a client sets and holds it against the item's limits, form and choices.
Conversion convertForItem(const ItemDescription& item, unsigned type, const QVariant& value);

} // namespace kiv::embedded
