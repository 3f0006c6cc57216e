#pragma once

#include "connection_p.h"

#include <embedded/servicedescription.h>

#include <QVariant>

namespace kiv::bus {

/// Appends a value as a variant. Whole numbers travel as i or u, arrays as as or ad, records as a{sv}, tables as
/// aa{sv}, lists of several kinds as av. A value that is none of these travels as its text.
void writeValue(Writer& writer, const QVariant& value);

/// Appends the variant that stands for no value: a byte.
void writeNoValue(Writer& writer);

/// Reads the variant that comes next; invalid, and not good, when it is of another kind.
QVariant readValue(Reader& reader);
/// The same, faster when the value is of the same type as `similar`.
QVariant readValue(Reader& reader, const QVariant& similar);

/// About how many bytes a value takes in a message.
int sizeOf(const QVariant& value);
int sizeOf(const QVector<embedded::ChoiceDescription>& choices);
/// The same of a whole description, and of the change of a field. Both sides count what a client owes by the latter.
int descriptionSize(const embedded::ItemDescription& item);
int changeSize(const QVariant& value, const QVector<embedded::ChoiceDescription>& choices);

/// Whether a value can travel: no text of it holds a NUL, it is not nested deeper than a bus allows, and it leaves room
/// in a message for what stands beside it.
bool canTravel(const QVariant& value);
/// Whether a whole description can.
bool canTravel(const embedded::ItemDescription& item);

void writeChoices(Writer& writer, const QVector<embedded::ChoiceDescription>& choices);
QVector<embedded::ChoiceDescription> readChoices(Reader& reader);

/// A description in the map of GetItems: type, value and whatever differs from the usual.
void writeDescription(Writer& writer, const embedded::ItemDescription& item);
/// Reads such a map; fields that are not known are passed over.
void readDescription(Reader& reader, embedded::ItemDescription* item);

} // namespace kiv::bus
