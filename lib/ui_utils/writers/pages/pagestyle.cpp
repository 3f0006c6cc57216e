#include "writers/pages/pagestyle_p.h"

#include "base/paths_p.h"
#include "writers/pages/drawnicon_p.h"
#include "writers/pages/fontchoice_p.h"
#include "writers/pages/pageimage_p.h"
#include "writers/pages/statusicons_p.h"

#include <QPaintDevice>

namespace uiutils {

namespace {

constexpr qreal pointsOfAnInch = 72;

PageFont pageFont(qreal size, bool isBold, QPaintDevice* device)
{
    QFont font(QStringLiteral("sans-serif"));
    font.setStyleHint(QFont::SansSerif);
    font.setPointSizeF(size);
    font.setBold(isBold);
    PageFont chosen(font, device);
    const QString other = chosen.isEmbeddable() ? QString() : embeddableFamily('a');
    if (other.isEmpty())
        return chosen;
    font.setFamily(other);
    return {font, device};
}

} // namespace

PageStyle::PageStyle(QPaintDevice* device)
    : m_unitsOfAPoint(device->logicalDpiY() / pointsOfAnInch)
    , body(pageFont(9, false, device))
    , bold(pageFont(9, true, device))
    , small(pageFont(8, false, device))
    , headings {pageFont(14, true, device), pageFont(12, true, device), pageFont(10.5, true, device)}
    , tableTitle(pageFont(9.5, true, device))
    , documentTitle(pageFont(18, true, device))
    , cellPadding(points(4))
    , rowPadding(points(2))
    , hairline(points(0.5))
{
}

const QImage& PageStyle::statusIcon(int status) const
{
    static const QImage none;
    const QLatin1String path = statusIconPath(status);
    if (path.isEmpty())
        return none;
    auto it = m_icons.find(status);
    if (it == m_icons.end()) {
        it = m_icons.insert(status, decodedImage(readIcon(path)));
        if (it->isNull()) {
            *it = drawnStatusIcon(status);
            m_unreadableIcons += onDisk(path);
        }
    }
    return *it;
}

} // namespace uiutils
