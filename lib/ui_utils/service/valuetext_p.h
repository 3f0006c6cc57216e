#pragma once

#include <QString>
#include <QVariant>

class BaseFormatter;

namespace uiutils {

/// The formatter's text of a value, with or without its unit. The formatter's own setting stays as it is.
QString formattedText(BaseFormatter& formatter, const QVariant& value, bool showUnits);

/// A value without a formatter as users read it: a double as fixedPointText(), anything else as its text.
QString unformattedText(const QVariant& value, unsigned precision);

/// A real number with `precision` decimals as users read it, without group separators, because the text is what they
/// would type.
QString fixedPointText(double number, unsigned precision);

} // namespace uiutils
