#pragma once

#include <QVector>

/// How a table's columns share the width of a page: arithmetic, without a painter.
namespace uiutils {

/// What a column asks for, its padding included. One that asks for nothing gets nothing.
struct ColumnDemand
{
    /// Holds every text in one line.
    qreal natural = 0;
    /// Holds every word whole.
    qreal minimal = 0;

    bool isEmpty() const { return natural <= 0; }
};

struct ColumnWidth
{
    int column;
    qreal width;
};

/// Columns that stand side by side.
using ColumnBand = QVector<ColumnWidth>;

/// Gives each column its width so that a band is `total` wide: the natural widths and a share of what is left, or what
/// lies between minimal and natural ones. The first `labels` columns are row labels. Where the words do not fit, the
/// widest ones are broken, down to `least` for a column. Where that is not enough, the columns are dealt out to several
/// bands, each beginning with the row labels. No band for columns that all ask for nothing.
QVector<ColumnBand> columnBands(const QVector<ColumnDemand>& demands, qreal total, qreal least, int labels);

} // namespace uiutils
