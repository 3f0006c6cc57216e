#pragma once

#include "message_p.h"

#include "embedded/itemstate_p.h"

namespace kiv::bus {

// What a service sends of its items. What cannot travel is left out, whatever a program has put into an item.

QString withoutNul(QString text);

/// A description that fits into a message.
embedded::ItemDescription travelling(embedded::ItemDescription item);

/// Appends the code of a field and what the item says of it. Returns about how many bytes they took.
int writeField(Writer& writer, embedded::ItemField field, const embedded::ItemState& state);
int writeField(Writer& writer, embedded::ItemField field, const QVariant& value);

} // namespace kiv::bus
