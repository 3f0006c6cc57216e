#pragma once

#include "writers/pages/reportcell.h"
#include "writers/pages/reportitem.h"

#include <QString>
#include <QStringList>
#include <QVector>

#include <memory>

class HtmlStreamWriter;

namespace uiutils {
class TableLayout;
class TableRowSource;
} // namespace uiutils

/// A table of a printed report. Its columns are as wide as their contents need. What does not fit is wrapped; if a
/// table has too many columns, the others follow below it, and a single row becomes a list of labels and values. Each
/// page on which a table continues repeats its title and column labels. Rows are not split unless a page is too low for
/// one with the headings above it; then their labels are repeated. If the title and the labels are read from right to
/// left, the first column is the rightmost, and left and right change places except for numbers.
class UIUTILS_EXPORT ReportTable final : public ReportItem
{
public:
    /// A cell of a row.
    using Cell = ReportCell;
    /// What a cell is in its row.
    using CellKind = ReportCell::Kind;

    /// The alignment of a cell that has none of its own: to the right in a column of which most such cells are numbers,
    /// else to the side from which the table is read.
    static constexpr qint8 automatic = -1;

    /// An empty table. `columnLabels` has a text for each value column.
    ReportTable(const QString& title, const QStringList& columnLabels, bool hasLabelColumn);
    ~ReportTable() override;

    /// The title above the columns.
    QString title() const { return m_title; }
    /// One text for each value column; empty if the column has no label.
    QStringList columnLabels() const;
    /// Whether a column of row labels precedes the values.
    bool hasLabelColumn() const { return m_hasLabelColumn; }
    /// Columns of a row, the label column included.
    int columnCount() const { return m_valueColumns + (m_hasLabelColumn ? 1 : 0); }

    /// Appends a cell to the current row, which begins with its first cell.
    void appendCell(const Cell& cell);
    /// Ends the current row; a row without cells does not count.
    void endRow();

    /// Rows that have ended, and the one that has cells.
    int rowCount() const;
    /// The cells of a row; fewer than columnCount() if the row ended early.
    QVector<Cell> row(int index) const;
    /// The cell that begins in that column of a row, or null. The tables that a pass makes read their rows from the
    /// report document: a cell of such a table stays until one of another row is requested.
    const Cell* cellAt(int row, int column) const;

    /// Whether the table has columns that have no place side by side, or too many for its usual type, on the pages for
    /// which it was last measured.
    bool isWide() const;

    void measure(const uiutils::PageStyle& style, const QSizeF& page) override;
    void release() override;
    Position end() const override;
    Portion split(const Position& begin, qreal room, bool isWholePage) const override;
    void draw(uiutils::PageCanvas& canvas, const Portion& portion, const QPointF& topLeft) const override;
    qreal spaceAbove() const override;
    QString outlineTitle() const override { return m_title; }

private:
    friend class ::HtmlStreamWriter;

    struct Label
    {
        int column;
        QString text;
    };

    /// Has the table read its rows from `rows`. It must have none of its own.
    void readRowsFrom(std::unique_ptr<uiutils::TableRowSource> rows);
    bool readsRows() const { return m_source != nullptr; }
    void storeRows();
    const Cell* findCell(const Cell* cell, const Cell* end, int column) const;

    bool hasOpenRow() const { return m_cells.size() > (m_rowEnds.isEmpty() ? 0 : m_rowEnds.constLast()); }
    int rowBegin(int index) const { return index == 0 ? 0 : m_rowEnds.at(index - 1); }
    int rowEnd(int index) const { return index < m_rowEnds.size() ? m_rowEnds.at(index) : m_cells.size(); }

    QString m_title;
    int m_valueColumns;
    // Only labels with a text: a table may claim many more columns than it fills.
    QVector<Label> m_labels;
    bool m_hasLabelColumn;
    bool m_hasSpans = false;
    // One flat list: a vector for each row would cost more than the cells.
    QVector<Cell> m_cells;
    QVector<int> m_rowEnds;
    // Where the rows are while none is stored.
    std::unique_ptr<uiutils::TableRowSource> m_source;
    std::unique_ptr<uiutils::TableLayout> m_layout;
};
