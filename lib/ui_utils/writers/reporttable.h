#pragma once

#include "writers/reportitem.h"

#include <QString>
#include <QStringList>
#include <QVector>

/// A table of a printed report.
class UIUTILS_EXPORT ReportTable final : public ReportItem
{
public:
    /// A label in front of a row is a cell that is set off from the values.
    enum class CellKind : quint8 { Value, RowLabel };

    struct Cell
    {
        QString text;
        /// 16 pass, 32 marginal, 64 fail, anything else no icon.
        int status = 0;
        /// 1 left, 2 right, anything else center.
        qint8 alignment = 0;
        CellKind kind = CellKind::Value;
        /// How many columns the cell covers.
        quint16 columnSpan = 1;
    };

    ReportTable(const QString& title, const QStringList& columnLabels, bool hasLabelColumn);
    ~ReportTable() override;

    QString title() const { return m_title; }
    /// One text for each value column, empty where the column has no label.
    QStringList columnLabels() const;
    bool hasLabelColumn() const { return m_hasLabelColumn; }
    /// Columns of a row, the label column included.
    int columnCount() const { return m_valueColumns + (m_hasLabelColumn ? 1 : 0); }

    /// Appends a cell to the last row, which opens with its first cell.
    void appendCell(const Cell& cell);
    /// Closes the last row; a row without cells is none.
    void endRow();

    int rowCount() const;
    /// The cells of a row; fewer than columnCount() when the row was closed early.
    QVector<Cell> row(int index) const;

private:
    struct Label
    {
        int column;
        QString text;
    };

    bool hasOpenRow() const { return m_cells.size() > (m_rowEnds.isEmpty() ? 0 : m_rowEnds.constLast()); }

    QString m_title;
    int m_valueColumns;
    // Those that have a text: a table may claim many more columns than it fills.
    QVector<Label> m_labels;
    bool m_hasLabelColumn;
    // One flat list: a vector for each row would cost more than the cells.
    QVector<Cell> m_cells;
    QVector<int> m_rowEnds;
};

Q_DECLARE_TYPEINFO(ReportTable::Cell, Q_MOVABLE_TYPE);
