#pragma once

#include "servicedescription.h"

namespace kiv::embedded {

/// A value as a user reads it, in the user's locale; `precision` is the decimals of a double, -1 for as many as it
/// needs.
QString shownText(const QVariant& value, const QVector<MemberDescription>& members, int precision);

/// What users read of a choice: its label; without one, its name.
QString choiceLabel(const ItemDescription& item, const ChoiceDescription& choice);

/// What users read of the item's own unit; empty without one.
QString unitLabel(const ItemDescription& item);

/// A text with the item's own unit after it; an empty text stays empty.
QString withUnit(const QString& text, const ItemDescription& item);

/// A value as an error quotes it: long values are shortened, texts are in quotes.
QString quotedText(const QVariant& value);

/// What clients may set, in words: "0 to 100 dB", "1 to 20 characters", "Internal, USB".
QString allowedText(const ItemDescription& item, unsigned type);

} // namespace kiv::embedded
