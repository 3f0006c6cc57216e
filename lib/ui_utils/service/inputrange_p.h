#pragma once

#include <QString>
#include <QVariant>

class BaseFormatter;

namespace uiutils {

/// What an item tells of the values that it takes.
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

/// One line for the user about the values that an entry field takes, for example "0 - 100 dB" or "8 - 32 chars"; empty
/// when there is nothing to say.
QString rangeDescription(const InputRange& range);

/// A real number as users read it, without group separators, because the text is what they would type.
QString fixedPointText(double number, unsigned precision);

/// The expression that a text item without one of its own is held to: ".{8,32}" for lengths from 8 to 32, ".*" when the
/// range is none.
QString lengthExpression(const QVariant& minimum, const QVariant& maximum);

} // namespace uiutils
