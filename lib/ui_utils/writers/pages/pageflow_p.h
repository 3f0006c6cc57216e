#pragma once

#include "writers/pages/reportitem.h"

#include <QVector>

/// Where pages end: arithmetic of heights, without a painter.
namespace uiutils {

/// How tall rows are.
struct RowHeights
{
    qreal line = 1;
    /// Above and below the lines of a row together; a row that is split has it in each part.
    qreal padding = 0;

    qreal of(int lines) const { return padding + lines * line; }
};

/// Takes rows from `begin` up to, but not including, row `endRow` as long as they fit into `room`; `lines` has the
/// number of lines of each row. A row is taken completely or not at all; only the first one, if `mayTear`, is taken in
/// part, at least one line of it.
ReportItem::Portion takeRows(const QVector<int>& lines, const RowHeights& heights, const ReportItem::Position& begin,
        int endRow, qreal room, bool mayTear);

/// The same for lines of running text: neither the first nor the last line is alone on a page.
ReportItem::Portion takeLines(int lineCount, qreal lineHeight, int begin, qreal room, bool isWholePage);

/// Where a portion of an item is printed.
struct PlacedPortion
{
    int page;
    int item;
    /// From the top of the page's body.
    qreal top;
    ReportItem::Portion portion;
};

/// The heights of pages that are upright and of those that are turned.
struct PageHeights
{
    qreal upright;
    qreal turned;

    qreal of(bool isTurned) const { return isTurned ? turned : upright; }
};

/// Places measured items one below the other on pages of these heights, in their order. `isTurned` says for each item
/// on which kind of page it is. `pageCount` is 1 without items.
QVector<PlacedPortion> flowOntoPages(
        const QList<ReportItem*>& items, const QVector<bool>& isTurned, const PageHeights& heights, int* pageCount);

} // namespace uiutils
