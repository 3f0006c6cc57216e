#pragma once

#include "core/status.h"
#include "writers/text/textlines_p.h"

#include <QString>
#include <QStringList>
#include <QStringView>
#include <QVector>

namespace uiutils {

/// Blanks before each line of a table; its title has none.
constexpr int tableIndentation = 2;

/// A table of a plain text. All cells are added first, because the widths of the columns depend on them. Then the table
/// is written: in columns if they fit into the width, as "label: value" lines if they would be too narrow.
class TextTable
{
public:
    /// To the right in a column that holds nothing but numbers, else to the left.
    static constexpr auto automatic = Alignment::Code(Alignment::Right + 1);

    /// One label for each value column, empty where it has none. `title` may be empty.
    TextTable(const QString& title, const QStringList& columnLabels);

    /// Begins a row. A row without cells is not written.
    void startRow(const QString& label);
    /// Puts a cell into a column, in the order of the columns. `status` is a code of Status; any other number is none.
    void addCell(int column, const QString& text, int status = Status::None, Alignment::Code alignment = automatic);

    bool hasRows() const { return !m_rowEnds.isEmpty(); }
    /// Whether nothing would be written.
    bool isEmpty() const;
    void write(TextLines& lines, int width) const;

private:
    struct Column
    {
        QString label;
        int labelWidth = 0;
        /// Of the longest line of any cell.
        int width = 0;
        int statusWidth = 0;
        /// One bit for each alignment that a cell requests.
        int alignments = 0;
        /// Whether all cells without an alignment of their own are numbers.
        bool isNumeric = true;

        Alignment::Code alignment(Alignment::Code wanted) const;
        Alignment::Code headerAlignment() const;
        bool isUsed() const { return labelWidth > 0 || width > 0 || statusWidth > 0; }
        /// The width of the statuses, with the gap before them.
        int statusPart() const;
        /// The width of the cells if the table is wide enough for all columns.
        int fullWidth() const { return qMax(width, labelWidth - statusPart()); }
    };
    struct Cell
    {
        int begin;
        int size;
        /// Below zero for a cell of several lines.
        int width;
        qint16 column;
        qint8 status;
        Alignment::Code alignment;
    };
    /// Where a column is written: its cells, and after them their statuses.
    struct Place
    {
        int begin = 0;
        int width = 0;
        int statusBegin = 0;
        int end = 0;
    };

    void append(int column, const QString& text, int status, Alignment::Code alignment);
    /// "Pass" and so on; null for what is no status.
    const QString* statusWord(int status) const;
    QStringView textOf(const Cell& cell) const { return QStringView(m_text).mid(cell.begin, cell.size); }
    int fitted(int available) const;
    QVector<Place> places(int width) const;
    void writeHeader(TextLines& lines, const QVector<Place>& places) const;
    void writeRow(TextLines& lines, const QVector<Place>& places, int begin, int end) const;
    void writeStacked(TextLines& lines, int width, int begin, int end) const;

    QString m_title;
    /// The first one is that of the rows' labels.
    QVector<Column> m_columns;
    bool m_hasHeader = false;
    // Requested once: looking up a translation takes longer than writing a row.
    QString m_statusWords[3];
    QString m_text;
    QVector<Cell> m_cells;
    QVector<int> m_rowEnds;
    bool m_rowIsOpen = false;
};

} // namespace uiutils
