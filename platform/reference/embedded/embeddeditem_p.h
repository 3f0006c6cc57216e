#pragma once

#include "itemstate_p.h"

namespace kiv::embedded {

/// The object that clients have of an item, of the kind that its type asks for; owned by `parent`.
KIVClientItem* createItem(const std::shared_ptr<ItemState>& state, QObject* parent);

/// Tells that an enumeration's choices are others than before; nothing for other items.
void tellChoices(KIVClientItem* item);

} // namespace kiv::embedded
