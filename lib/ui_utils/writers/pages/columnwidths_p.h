#pragma once

#include <QVector>

/// How the columns of a table share the width of a page: arithmetic, without a painter.
namespace uiutils {

/// The widths that a column needs, including its padding. A column that needs nothing gets nothing.
struct ColumnDemand
{
    /// Holds every text in one line.
    qreal natural = 0;
    /// Holds every word in one piece.
    qreal word = 0;
    /// Holds every part of a word that separators leave.
    qreal piece = 0;

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
/// a width between that of its longest word and the natural one. The first `labels` columns are row labels.
///
/// If the words do not fit, the longest are torn at separators. If that is not enough, the columns are divided into
/// several bands of about the same width, each of which begins with the row labels. A word of more than a third of
/// `total` counts only as long as every other column has its natural width or a comfortable one: `comfortable`. No band
/// if no column needs any width.
QVector<ColumnBand> columnBands(const QVector<ColumnDemand>& demands, qreal total, qreal comfortable, int labels);

} // namespace uiutils
