#pragma once

#include "writers/pages/reportitem.h"

#include <QVector>

/// Where pages end: arithmetic of heights, without a painter.
namespace uiutils {

/// How tall rows are.
struct RowHeights
{
    qreal line = 1;
    /// Above and below the lines of a row together; a row that is parted has it in each part.
    qreal padding = 0;

    qreal of(int lines) const { return padding + lines * line; }
};

/// Takes rows from `begin` to before row `endRow` as long as they fit into `room`; `lines` tells the lines of each row.
/// A row is taken whole or not at all; only one that begins the stack and `mayTear` is taken in part, at least a line
/// of it.
ReportItem::Portion takeRows(const QVector<int>& lines, const RowHeights& heights, const ReportItem::Position& begin,
        int endRow, qreal room, bool mayTear);

/// The same for lines of running text: neither the first nor the last line stands alone on a page.
ReportItem::Portion takeLines(int lineCount, qreal lineHeight, int begin, qreal room, bool isWholePage);

/// Where a portion of an item lies.
struct PlacedPortion
{
    int page;
    int item;
    /// From the top of the page's body.
    qreal top;
    ReportItem::Portion portion;
};

/// Sets measured items one below the other onto pages of that height, in their order. `pageCount` is 1 for no items.
QVector<PlacedPortion> flowOntoPages(const QList<ReportItem*>& items, qreal pageHeight, int* pageCount);

} // namespace uiutils
