#pragma once

#include "message_p.h"

#include "embedded/itemstate_p.h"

namespace kiv::bus {

// What a service sends of its items. What cannot travel is left out, whatever a program has put into an item.

QString withoutNul(QString text);

/// Appends texts by their names as a{ss}: as many as leave room in a message for what stands beside them.
void writeTexts(Writer& writer, const QMap<QString, QString>& texts);
QMap<QString, QString> readTexts(Reader& reader);

/// A description that fits into a message.
embedded::ItemDescription travelling(embedded::ItemDescription item);

/// Appends the code of a field and what the item says of it. Returns about how many bytes they took.
int writeField(Writer& writer, embedded::ItemField field, const embedded::ItemState& state);
int writeField(Writer& writer, embedded::ItemField field, const QVariant& value);

} // namespace kiv::bus
