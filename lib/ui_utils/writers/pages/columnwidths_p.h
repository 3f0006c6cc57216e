#pragma once

#include <QVector>

/// How the columns of a table share the width of a page: arithmetic, without a painter.
namespace uiutils {

/// The widths that a column needs, including its padding. A column that needs nothing gets nothing.
struct ColumnDemand
{
    /// Holds every text in one line.
    qreal natural = 0;
    /// Holds every word unbroken.
    qreal minimal = 0;

    bool isEmpty() const { return natural <= 0; }
};

struct ColumnWidth
{
    int column;
    qreal width;
};

/// Columns that are side by side.
using ColumnBand = QVector<ColumnWidth>;

/// Gives each column its width so that a band is `total` wide: the natural width and a share of the remaining space, or
/// a width between the minimal and the natural one. The first `labels` columns are row labels. If the words do not fit,
/// the widest are broken, down to a column width of `least`. If that is not enough, the columns are divided into
/// several bands, each of which begins with the row labels. No band if no column needs any width.
QVector<ColumnBand> columnBands(const QVector<ColumnDemand>& demands, qreal total, qreal least, int labels);

} // namespace uiutils
