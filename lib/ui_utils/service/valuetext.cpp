#include "service/valuetext_p.h"

#include <kiv/baseformatter.h>

#include <QLocale>

namespace uiutils {

namespace {

/// No double has more digits to show, but a service could request billions.
constexpr unsigned maximumDecimals = 340;

} // namespace

QString formattedText(BaseFormatter& formatter, const QVariant& value, bool showUnits)
{
    const bool shown = formatter.getShowUnits();
    formatter.setShowUnits(showUnits);
    const QString text = formatter.format(value);
    formatter.setShowUnits(shown);
    return text;
}

QString unformattedText(const QVariant& value, unsigned precision)
{
    return value.type() == QVariant::Double ? fixedPointText(value.toDouble(), precision) : value.toString();
}

QString fixedPointText(double number, unsigned precision)
{
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale.toString(number, 'f', int(qMin(precision, maximumDecimals)));
}

} // namespace uiutils
