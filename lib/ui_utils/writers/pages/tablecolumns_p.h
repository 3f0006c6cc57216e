#pragma once

#include "writers/pages/columnwidths_p.h"
#include "writers/pages/pagestyle_p.h"
#include "writers/pages/reporttable.h"

#include <QStringList>

#include <memory>

namespace uiutils {

/// The single row of a table as a list: each column that is not empty is a row with its label and its value.
std::unique_ptr<ReportTable> rowAsList(const ReportTable& table);

/// The columns of a table on pages: the type of their texts, their places, and how their cells are aligned.
class TableColumns
{
public:
    /// A width that was measured still holds its text after rounding.
    static constexpr qreal tolerance = 0.01;

    /// Where the text of a column is, from the left edge of the table.
    struct Place
    {
        int column;
        qreal left;
        qreal width;
    };
    using Band = QVector<Place>;

    /// `table` and `style` must outlive the columns; `width` is that of the page.
    TableColumns(const ReportTable& table, const PageStyle& style, qreal width);

    const TableType& type() const { return m_type; }
    const QVector<Band>& bands() const { return m_bands; }
    /// Whether the columns are divided, or set in smaller type.
    bool isWide() const { return m_bands.size() > 1 || &m_type.body != &m_style.body; }
    /// Whether the first column is the rightmost.
    bool isMirrored() const { return m_isMirrored; }

    /// Whether each text of a column is one line of that width.
    bool areLines(const Place& place) const;

    const PageFont& fontOf(const ReportTable::Cell& cell) const;
    /// What the icon of a cell's status takes beside the text.
    qreal iconSpace(const ReportTable::Cell& cell) const;
    QString labelOf(int column) const;
    Qt::Alignment alignmentOf(const ReportTable::Cell& cell, int column) const;
    /// A label is aligned like the values below it.
    Qt::Alignment labelAlignment(int column) const { return m_labelAlignments.at(column); }

private:
    struct Column
    {
        ColumnDemand demand;
        /// Cells without an alignment of their own.
        int numbers = 0;
        int texts = 0;
        /// Cells that are to be aligned to the right, and otherwise.
        int rights = 0;
        int others = 0;
        bool hasPlainLines = true;

        bool isNumeric() const { return numbers > 2 * texts; }
        bool isAllRight() const { return others == 0 && numbers + rights > 0 && (isNumeric() || numbers + texts == 0); }
    };

    bool isReadFromRight() const;
    void judge(const ReportTable::Cell& cell, Column& column) const;
    void alignLabels();
    void measureLabels();
    void measureCells();
    void measureCell(const ReportTable::Cell& cell, Column& column) const;
    QVector<ColumnDemand> demands() const;
    Band placed(const ColumnBand& band) const;

    const ReportTable& m_table;
    const PageStyle& m_style;
    qreal m_width;
    bool m_isMirrored;
    TableType m_type;
    QStringList m_labels;
    // Of the first row, which is not read again for each page.
    QVector<Qt::Alignment> m_labelAlignments;
    QVector<Column> m_columns;
    QVector<Band> m_bands;
};

} // namespace uiutils
