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
constexpr qreal metersOfAnInch = 0.0254;
/// In points, of tables of many columns.
constexpr qreal denseSize = 7.5;

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

QImage imageOf(int resolution)
{
    QImage image(1, 1, QImage::Format_Mono);
    const int dotsOfAMeter = qRound(resolution / metersOfAnInch);
    image.setDotsPerMeterX(dotsOfAMeter);
    image.setDotsPerMeterY(dotsOfAMeter);
    return image;
}

} // namespace

PageStyle::PageStyle(QPaintDevice* device, bool isMirrored)
    : m_resolution(imageOf(device->logicalDpiY()))
    , m_unitsOfAPoint(device->logicalDpiY() / pointsOfAnInch)
    , m_isMirrored(isMirrored)
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

TableType PageStyle::tableType(bool isDense) const
{
    if (!isDense)
        return {body, bold, cellPadding, rowPadding};
    if (!m_denseBody) {
        m_denseBody.emplace(pageFont(denseSize, false, &m_resolution));
        m_denseBold.emplace(pageFont(denseSize, true, &m_resolution));
    }
    return {*m_denseBody, *m_denseBold, points(3.5), points(1.5)};
}

/// The lower levels have the fonts of tables and texts.
const PageFont& PageStyle::headingFont(int level) const
{
    const int last = int(headings.size());
    return level <= last ? headings[size_t(level - 1)] : level == last + 1 ? tableTitle : bold;
}

const QColor& PageStyle::headingColor(int level) const
{
    const int last = int(headings.size());
    return level <= last ? accent : level == last + 1 ? ink : mutedInk;
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
