#pragma once

#include "message_p.h"
#include "protocol_p.h"

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

/// The size that a value must stay below: beside it there may be a page of others.
constexpr int largestValue = largestMessage - largestPage - 4096;
/// Where the sizes end that are counted.
constexpr int largestSize = 1000 * 1000 * 1000;

/// About how many bytes a value takes in a message.
int sizeOf(const QVariant& value);
int sizeOf(const QVector<embedded::ChoiceDescription>& choices);
/// The same of the change of a field. Both sides count what a client owes by it.
int changeSize(const QVariant& value, const QVector<embedded::ChoiceDescription>& choices);

/// Whether a value can travel: no text of it holds a NUL, it is not nested deeper than a bus allows, and it leaves room
/// in a message for what stands beside it.
bool canTravel(const QVariant& value);

} // namespace kiv::bus
