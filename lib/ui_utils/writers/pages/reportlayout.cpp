#include "writers/pages/reportlayout_p.h"

#include "writers/pages/pagecanvas_p.h"
#include "writers/pages/readingside_p.h"
#include "writers/pages/reporttable.h"

#include <QGuiApplication>
#include <QHash>
#include <QScreen>

#include <algorithm>

namespace uiutils {

namespace {

constexpr qreal metersOfAnInch = 0.0254;

/// The resolution of the screen, so that texts have the widths that they have there; where there is no screen, what Qt
/// takes then.
int pageResolution()
{
    if (QCoreApplication::testAttribute(Qt::AA_Use96Dpi))
        return 96;
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? qRound(screen->logicalDotsPerInchY()) : 100;
}

/// Where there is a resolution, but nothing is painted.
QImage measuringDevice()
{
    QImage device(1, 1, QImage::Format_ARGB32_Premultiplied);
    const int dotsOfAMeter = qRound(pageResolution() / metersOfAnInch);
    device.setDotsPerMeterX(dotsOfAMeter);
    device.setDotsPerMeterY(dotsOfAMeter);
    return device;
}

/// By its title, or if that has no letters, by those of its parts.
bool isReportReadFromRight(const QString& title, const QList<ReportItem*>& items)
{
    if (hasReadingSide(title))
        return isReadFromRight(title);
    QString parts;
    for (const ReportItem* item : items)
        parts += item->outlineTitle();
    return isReadFromRight(parts);
}

PageStyle measuringStyle(bool isMirrored)
{
    QImage device = measuringDevice();
    return PageStyle(&device, isMirrored);
}

/// Which layout each item has. Items cannot say it themselves.
class Owners
{
public:
    /// Changes with every layout of any item.
    quint64 changes() const { return m_changes; }
    bool isOf(const ReportItem* item, const ReportLayout* layout) const { return m_layouts.value(item) == layout; }
    void set(const ReportItem* item, const ReportLayout* layout)
    {
        m_layouts.insert(item, layout);
        ++m_changes;
    }
    void remove(const ReportItem* item) { m_layouts.remove(item); }

private:
    QHash<const ReportItem*, const ReportLayout*> m_layouts;
    quint64 m_changes = 0;
};

Owners& owners()
{
    static auto& owners = *new Owners;
    return owners;
}

} // namespace

QSizeF letterPaper(QPageLayout::Orientation orientation)
{
    return QPageLayout(QPageSize(QPageSize::Letter), orientation, QMarginsF()).fullRect(QPageLayout::Point).size();
}

ReportLayout::ReportLayout(const Surroundings& surroundings, const QList<ReportItem*>& items, const QSizeF& paper)
    : m_paper(paper)
    , m_style(measuringStyle(isReportReadFromRight(surroundings.titleBlock.title, items)))
    , m_frame(m_style, paper * m_style.points(1), surroundings.frame)
    , m_turnedFrame(m_style, paper.transposed() * m_style.points(1), surroundings.frame)
    , m_turnsWideTables(surroundings.turnsWideTables && paper.width() < paper.height())
    , m_titleBlock(surroundings.titleBlock)
    , m_items(items)
{
    m_items.prepend(&m_titleBlock);
    m_isTurned.fill(false, m_items.size());
}

ReportLayout::~ReportLayout()
{
    for (ReportItem* item : qAsConst(m_items)) {
        if (!owners().isOf(item, this))
            continue;
        item->release();
        owners().remove(item);
    }
}

void ReportLayout::measure(int index)
{
    ReportItem& item = *m_items.at(index);
    owners().set(&item, this);
    item.measure(m_style, frameOf(m_isTurned.at(index)).body().size());
}

bool ReportLayout::advance()
{
    if (m_measured < m_items.size()) {
        const int index = m_measured++;
        m_isTurned[index] = false;
        measure(index);
        const auto* const table = m_turnsWideTables ? dynamic_cast<const ReportTable*>(m_items.at(index)) : nullptr;
        m_isTurned[index] = table && table->isWide();
        if (m_isTurned.at(index))
            measure(index);
    } else if (m_pageCount == 0) {
        turnHeadings();
        const PageHeights heights {m_frame.body().height(), m_turnedFrame.body().height()};
        m_placed = flowOntoPages(m_items, m_isTurned, heights, &m_pageCount);
    }
    return m_pageCount == 0;
}

/// What belongs to a turned table is on its page, and so is the title block if the report begins with it.
void ReportLayout::turnHeadings()
{
    for (int i = m_items.size() - 2; i >= 0; --i) {
        const bool belongsToNext = i == 0 || m_items.at(i)->keepsWithNext();
        if (!belongsToNext || !m_isTurned.at(i + 1) || m_isTurned.at(i))
            continue;
        m_isTurned[i] = true;
        measure(i);
    }
}

bool ReportLayout::isTurned(int page) const
{
    const auto isBefore = [](const PlacedPortion& placed, int page) { return placed.page < page; };
    const auto it = std::lower_bound(m_placed.cbegin(), m_placed.cend(), page, isBefore);
    return it != m_placed.cend() && m_isTurned.at(it->item);
}

bool ReportLayout::isUpToDate() const
{
    return m_changes == owners().changes()
            || std::all_of(m_items.cbegin(), m_items.cend(), [this](auto* item) { return owners().isOf(item, this); });
}

void ReportLayout::draw(PageCanvas& canvas, int page)
{
    if (!isUpToDate()) {
        // The items may have changed meanwhile, too.
        m_measured = 0;
        m_pageCount = 0;
        while (advance()) { }
    }
    m_changes = owners().changes();
    if (page < 0 || page >= m_pageCount)
        return;
    const PageFrame& frame = frameOf(isTurned(page));
    frame.drawHeader(canvas, page + 1);
    drawItems(canvas, page);
    frame.drawFooter(canvas, page + 1, m_pageCount);
    canvas.flush();
}

void ReportLayout::drawItems(PageCanvas& canvas, int page) const
{
    const QPointF origin = frameOf(isTurned(page)).body().topLeft();
    const auto isBefore = [](const PlacedPortion& placed, int page) { return placed.page < page; };
    auto it = std::lower_bound(m_placed.cbegin(), m_placed.cend(), page, isBefore);
    for (; it != m_placed.cend() && it->page == page; ++it)
        m_items.at(it->item)->draw(canvas, it->portion, origin + QPointF(0, it->top));
}

/// A heading is nested in the one of the higher level before it, and a table in the last heading.
QVector<pdf::OutlineEntry> ReportLayout::outline() const
{
    QVector<pdf::OutlineEntry> entries;
    int headingLevel = 0;
    for (const PlacedPortion& placed : m_placed) {
        if (placed.portion.begin != ReportItem::Position())
            continue;
        const ReportItem& item = *m_items.at(placed.item);
        const int heading = item.headingLevel();
        if (heading > 0)
            headingLevel = heading;
        const QString title = item.outlineTitle();
        const int level = heading > 0 ? heading - 1 : headingLevel;
        const qreal top = (frameOf(m_isTurned.at(placed.item)).body().top() + placed.top) / m_style.points(1);
        if (!title.isEmpty())
            entries.append({title, level, placed.page, pageSize(placed.page).height() - top});
    }
    return entries;
}

} // namespace uiutils
