#pragma once

#include "writers/emitter/pdfoutline_p.h"
#include "writers/pages/pageflow_p.h"
#include "writers/pages/pageframe_p.h"
#include "writers/pages/pagestyle_p.h"
#include "writers/pages/titleblock_p.h"

#include <QImage>
#include <QPageLayout>

namespace uiutils {

/// The paper of files, in points.
QSizeF letterPaper(QPageLayout::Orientation orientation);

/// Report items on pages: laid out item by item, then drawn page by page in any order.
///
/// An item has one layout at a time. A layout whose items were laid out by another one meanwhile does its work again
/// before it draws.
class ReportLayout
{
public:
    /// What the pages show besides the items.
    struct Surroundings
    {
        TitleBlock::Contents titleBlock;
        PageFrame::Texts frame;
        /// Whether tables that are too wide for upright pages are on turned ones, as headings above them are.
        bool turnsWideTables = false;
    };

    /// `paper` in points. The items remain the caller's and must outlive the layout.
    ReportLayout(const Surroundings& surroundings, const QList<ReportItem*>& items, const QSizeF& paper);
    ~ReportLayout();
    Q_DISABLE_COPY_MOVE(ReportLayout)

    const PageStyle& style() const { return m_style; }
    /// In points. `page` counts from 0.
    QSizeF pageSize(int page) const { return isTurned(page) ? m_paper.transposed() : m_paper; }

    /// Measures the next item, or, when none is left, finds where pages end. Returns whether more is to be done.
    bool advance();
    /// 0 until everything is laid out.
    int pageCount() const { return m_pageCount; }

    /// `page` counts from 0. The canvas has the units of the style. Draws nothing if there is no such page.
    void draw(PageCanvas& canvas, int page);

    QVector<pdf::OutlineEntry> outline() const;

private:
    void measure(int index);
    void turnHeadings();
    bool isTurned(int page) const;
    const PageFrame& frameOf(bool isTurned) const { return isTurned ? m_turnedFrame : m_frame; }
    bool isUpToDate() const;
    void drawItems(PageCanvas& canvas, int page) const;

    QSizeF m_paper;
    PageStyle m_style;
    PageFrame m_frame;
    PageFrame m_turnedFrame;
    bool m_turnsWideTables;
    TitleBlock m_titleBlock;
    QList<ReportItem*> m_items;
    // For each item, whether it is on turned pages.
    QVector<bool> m_isTurned;
    int m_measured = 0;
    QVector<PlacedPortion> m_placed;
    int m_pageCount = 0;
    // When the items were last known to have this layout.
    quint64 m_changes = 0;
};

} // namespace uiutils
