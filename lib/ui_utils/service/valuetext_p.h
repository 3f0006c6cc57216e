#pragma once

#include <QString>
#include <QVariant>

class BaseFormatter;

namespace uiutils {

/// The formatter's text of a value, with or without its unit; the formatter's own setting stays as it is.
QString formattedText(BaseFormatter& formatter, const QVariant& value, bool showUnits);

/// A value without a formatter as users read it: a double with `precision` decimals, anything else as its text.
QString plainText(const QVariant& value, unsigned precision);

} // namespace uiutils
