#include "writers/html/cellmarkup_p.h"

#include "core/status.h"

namespace uiutils {

QString newLine(int level)
{
    return QLatin1Char('\n') + QString(4 * level, QLatin1Char(' '));
}

CellMarkup::CellMarkup()
    : valueEnd(QStringLiteral("</td>"))
    , labelEnd(QStringLiteral("</b>") + newLine(cellLevel) + valueEnd)
    , row(newLine(rowLevel) + QStringLiteral("<tr>"))
    , rowEnd(newLine(rowLevel) + QStringLiteral("</tr>"))
{
    const QLatin1String names[] = {QLatin1String("center"), QLatin1String("left"), QLatin1String("right")};
    for (const int align : {Alignment::Center, Alignment::Left, Alignment::Right}) {
        value[align] = newLine(cellLevel) + QStringLiteral("<td align=\"%1\">").arg(names[align]);
        label[align] = value[align] + newLine(contentLevel) + QStringLiteral("<b>");
    }
}

const CellMarkup& cellMarkup()
{
    static const CellMarkup markup;
    return markup;
}

int knownAlignment(int align)
{
    return align == Alignment::Left || align == Alignment::Right ? align : int(Alignment::Center);
}

} // namespace uiutils
