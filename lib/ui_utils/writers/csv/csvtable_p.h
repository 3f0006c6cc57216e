#pragma once

#include "writers/csv/csvfield_p.h"

#include <QString>
#include <QStringList>
#include <QStringView>
#include <QVector>

namespace uiutils {

/// A table of a CSV file. All cells are added first, because a column gets columns for its units and statuses only if
/// a cell has one.
class CsvTable
{
public:
    /// One label for each value column, empty where it has none. `rowLabel` is above the labels of the rows.
    CsvTable(const QString& rowLabel, const QStringList& columnLabels);

    /// Begins a row. A row without any text is not written.
    void startRow(const QString& label);
    /// Puts a cell into a column, in the order of the columns. `status` is a code of Status; any other number is none.
    /// A null `unit` is that of the text.
    void addCell(int column, const QString& text, int status, const QString& unit = QString());
    /// The same for a text that is no number whatever it looks like.
    void addText(int column, const QString& text);

    bool hasRows() const { return !m_rowEnds.isEmpty(); }
    /// The labels of the columns that have a label or a cell, and the rows.
    void write(CsvLines& lines) const;

private:
    struct Column
    {
        QString label;
        bool hasCells = false;
        bool hasUnits = false;
        bool hasStatuses = false;
    };
    struct Cell
    {
        int begin;
        int size;
        int unitSize;
        qint16 column;
        /// The place of the status among the words; negative without one.
        qint8 word;
        bool isNumber;
    };

    void append(int index, Quantity value, bool isNumber, int word);
    QVector<int> usedColumns() const;
    void writeHeader(CsvLines& lines, const QVector<int>& columns) const;
    void writeRow(CsvLines& lines, const QVector<int>& columns, int begin, int end) const;
    void writeCell(CsvLines& lines, const Column& column, const Cell* cell) const;

    /// The first one is that of the rows' labels.
    QVector<Column> m_columns;
    // Requested once: looking up a translation takes longer than writing a row.
    QString m_statusWords[3];
    QString m_text;
    QVector<Cell> m_cells;
    QVector<int> m_rowEnds;
    bool m_rowIsOpen = false;
};

} // namespace uiutils
