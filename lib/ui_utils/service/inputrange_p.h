#pragma once

#include <QString>
#include <QVariant>

class BaseFormatter;

namespace uiutils {

/// What an item says about the values that it accepts.
struct InputRange
{
    QVariant minimum;
    QVariant maximum;
    /// A KivData::InputType, or 20 for a DNS name.
    unsigned inputType = 0;
    /// The type's name, for example "double".
    QString type;
    /// Decimals of a real number.
    unsigned precision = 0;
    /// The item's formatter, or null.
    const BaseFormatter* formatter = nullptr;
};

/// One line for the user about the values that an entry field accepts, for example "0 - 100 dB" or "8 - 32 chars";
/// empty if there is nothing to say.
QString rangeDescription(const InputRange& range);

/// The expression that a text must match if its item has none: ".{8,32}" for lengths from 8 to 32, ".*" without a
/// range.
QString lengthExpression(const QVariant& minimum, const QVariant& maximum);

} // namespace uiutils
