#pragma once

#include "core/status.h"

#include <QString>
#include <QStringList>
#include <QStringView>
#include <QVector>

namespace uiutils {

/// Blanks in front of a table, whose title has none.
constexpr int tableIndentation = 2;

/// A plain text under way, line by line: blanks are written in front of a piece only, so that no line ends in one.
class TextLines
{
public:
    /// Puts `piece`, which takes `width` columns, at the column or behind what stands there.
    void put(int column, QStringView piece, int width);
    void endLine();
    /// A line of `length` times `letter`, beginning at `column`.
    void putRule(int column, int length, QLatin1Char letter);
    /// Writes a whole text from column `begin` to `width`, every line but the first from `hanging`. Returns the width
    /// of the longest line.
    int putText(QStringView text, int width, int begin = 0, int hanging = 0);

    bool isEmpty() const { return m_text.isEmpty(); }
    const QString& text() const { return m_text; }
    /// Makes room for as many characters more.
    void expect(qint64 characters);

private:
    QString m_text;
    int m_column = 0;
};

/// A table of a plain text. Cells are taken in first, since the widths of the columns follow from all of them; then it
/// is written, in columns where they fit into the width, as "label: value" lines where they would get too narrow.
class TextTable
{
public:
    /// To the right in a column that holds nothing but numbers, else to the left.
    static constexpr auto automatic = Alignment::Code(Alignment::Right + 1);

    /// One label for each value column, empty where it has none. `title` may be empty.
    TextTable(const QString& title, const QStringList& columnLabels);

    /// Begins a row; one in which nothing is put is none.
    void startRow(const QString& label);
    /// Puts a cell into a column, in the order of the columns. `status` is a code of Status;
    /// anything else is none.
    void addCell(int column, const QString& text, int status = Status::None, Alignment::Code alignment = automatic);

    bool hasRows() const { return !m_rowEnds.isEmpty(); }
    /// Whether it writes nothing at all.
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
        /// One bit for each alignment that a cell asks for.
        int alignments = 0;
        /// Whether all cells that leave their alignment open are numbers.
        bool isNumeric = true;

        Alignment::Code alignment(Alignment::Code wanted) const;
        Alignment::Code headerAlignment() const;
        bool isUsed() const { return labelWidth > 0 || width > 0 || statusWidth > 0; }
        /// What the statuses take, with the gap in front of them.
        int statusPart() const;
        /// What the cells take where there is room for all.
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
    /// Where a column is written: its cells, and behind them their statuses.
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
    // Asked for once: a translation is looked up for longer than a row is written.
    QString m_statusWords[3];
    QString m_text;
    QVector<Cell> m_cells;
    QVector<int> m_rowEnds;
    bool m_rowIsOpen = false;
};

} // namespace uiutils
