#pragma once

#include "itemstate_p.h"

namespace kiv::embedded {

/// The object that clients have of an item, of the class that its type needs; owned by `parent`.
KIVClientItem* createItem(const std::shared_ptr<ItemState>& state, QObject* parent);

/// Reports that an enumeration's choices have changed; does nothing for other items.
void tellChoices(KIVClientItem* item);

} // namespace kiv::embedded
