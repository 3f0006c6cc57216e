#include "writers/pages/pageflow_p.h"

namespace uiutils {

namespace {

/// What exceeds the space by a rounding error still fits.
constexpr qreal tolerance = 1e-6;

class Flow
{
public:
    Flow(const QList<ReportItem*>& items, const QVector<bool>& isTurned, const PageHeights& heights)
        : m_items(items)
        , m_isTurned(isTurned)
        , m_heights(heights)
        , m_pageHeight(heights.upright)
    {
    }

    void run()
    {
        for (int i = 0; i < m_items.size(); ++i)
            place(i);
    }

    int pageCount() const { return m_page + 1; }
    QVector<PlacedPortion> placed() const { return m_placed; }

private:
    bool isAtTop() const { return m_top <= 0; }
    qreal room() const { return m_pageHeight - m_top; }

    void startPage()
    {
        ++m_page;
        m_top = 0;
        m_hasHeadingsOnly = true;
    }

    /// Whether no other page has more space for an item at `top`. A page that contains only the headings of the item
    /// counts as an empty one, which would separate them from it. Headings that take half a page are not kept with
    /// their item.
    bool isWholePage(qreal top, bool hasHeadingsOnly) const
    {
        return top <= 0 || (hasHeadingsOnly && top <= m_pageHeight / 2);
    }

    void place(int index)
    {
        const ReportItem& item = *m_items.at(index);
        if (item.end() == ReportItem::Position())
            return;
        const qreal height = m_heights.of(m_isTurned.at(index));
        const bool isOfOtherPages = !qFuzzyCompare(height, m_pageHeight);
        if (!isAtTop() && (isOfOtherPages || isPartedFromNext(index, m_top)))
            startPage();
        m_pageHeight = height;
        if (!isAtTop())
            m_top += item.spaceAbove();
        ReportItem::Position at;
        while (at != item.end()) {
            const ReportItem::Portion portion = item.split(at, room(), isWholePage(m_top, m_hasHeadingsOnly));
            if (portion.isEmpty()) {
                if (isAtTop())
                    return;
                startPage();
                continue;
            }
            m_placed.append({m_page, index, m_top, portion});
            m_top += portion.height;
            m_hasHeadingsOnly = m_hasHeadingsOnly && item.keepsWithNext();
            at = portion.end;
        }
    }

    /// Whether an item that belongs to the next one would be at the foot of this page, although some page can hold
    /// both.
    bool isPartedFromNext(int index, qreal top) const
    {
        return m_items.at(index)->keepsWithNext() && !holdsWithNext(index, top, m_hasHeadingsOnly)
                && holdsWithNext(index, 0, true);
    }

    bool holdsWithNext(int index, qreal top, bool hasHeadingsOnly) const
    {
        for (; index < m_items.size(); ++index) {
            const ReportItem& item = *m_items.at(index);
            // An item that shows nothing has nothing to split.
            if (item.end() == ReportItem::Position())
                continue;
            if (!qFuzzyCompare(m_heights.of(m_isTurned.at(index)), m_pageHeight))
                return true;
            if (top > 0)
                top += item.spaceAbove();
            const ReportItem::Portion portion = item.split({}, m_pageHeight - top, isWholePage(top, hasHeadingsOnly));
            if (!item.keepsWithNext())
                return !portion.isEmpty();
            if (portion.end != item.end())
                return false;
            top += portion.height;
        }
        return true;
    }

    const QList<ReportItem*>& m_items;
    const QVector<bool>& m_isTurned;
    PageHeights m_heights;
    // Of the page that is being filled.
    qreal m_pageHeight;
    int m_page = 0;
    qreal m_top = 0;
    /// Whether this page contains only items that belong to the next one.
    bool m_hasHeadingsOnly = true;
    QVector<PlacedPortion> m_placed;
};

} // namespace

ReportItem::Portion takeRows(const QVector<int>& lines, const RowHeights& heights, const ReportItem::Position& begin,
        int endRow, qreal room, bool mayTear)
{
    ReportItem::Portion portion {begin, begin, 0};
    while (portion.end.row < endRow) {
        const int left = lines.at(portion.end.row) - portion.end.line;
        const qreal height = heights.of(left);
        if (portion.height + height > room + tolerance)
            break;
        portion.height += height;
        portion.end = {portion.end.row + 1, 0};
    }
    if (portion.isEmpty() && begin.row < endRow && mayTear) {
        const int fitting = int((room - heights.padding + tolerance) / heights.line);
        const int left = lines.at(begin.row) - begin.line;
        // A page that is too low for a single line shows it cut off.
        const int taken = qBound(1, fitting, left);
        portion.end = taken == left ? ReportItem::Position {begin.row + 1, 0}
                                    : ReportItem::Position {begin.row, begin.line + taken};
        portion.height = heights.of(taken);
    }
    return portion;
}

ReportItem::Portion takeLines(int lineCount, qreal lineHeight, int begin, qreal room, bool isWholePage)
{
    const int left = lineCount - begin;
    int taken = qMin(left, int((room + tolerance) / lineHeight));
    if (taken == left - 1)
        --taken;
    if (taken < left && taken < 2)
        taken = isWholePage ? qMin(left, qMax(taken, 1)) : 0;
    return {{begin, 0}, {begin + taken, 0}, taken * lineHeight};
}

QVector<PlacedPortion> flowOntoPages(
        const QList<ReportItem*>& items, const QVector<bool>& isTurned, const PageHeights& heights, int* pageCount)
{
    Flow flow(items, isTurned, heights);
    flow.run();
    *pageCount = flow.pageCount();
    return flow.placed();
}

} // namespace uiutils
