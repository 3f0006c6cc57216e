#include "service/valuetext_p.h"

#include "service/inputrange_p.h"

#include <kiv/baseformatter.h>

namespace uiutils {

QString formattedText(BaseFormatter& formatter, const QVariant& value, bool showUnits)
{
    const bool shown = formatter.getShowUnits();
    formatter.setShowUnits(showUnits);
    const QString text = formatter.format(value);
    formatter.setShowUnits(shown);
    return text;
}

QString plainText(const QVariant& value, unsigned precision)
{
    return value.type() == QVariant::Double ? fixedPointText(value.toDouble(), precision) : value.toString();
}

} // namespace uiutils
