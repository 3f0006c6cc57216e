#include "writers/text/texttable_p.h"

#include "base/plaintext_p.h"
#include "core/numbertext_p.h"
#include "core/statusword_p.h"
#include "writers/text/reportcontent_p.h"

#include <QVarLengthArray>

#include <algorithm>

namespace uiutils {

namespace {

/// Blanks between columns, and between a value and its status.
constexpr int gap = 2;
/// A column that is narrower than this is hard to read.
constexpr int narrowestColumn = 8;
constexpr int rowLabelColumn = 0;

int longestLine(QStringView text)
{
    int width = 0;
    while (!text.isEmpty()) {
        const auto end = text.indexOf(QLatin1Char('\n'));
        width = qMax(width, displayWidth(end < 0 ? text : text.left(end)));
        text = end < 0 ? QStringView() : text.mid(end + 1);
    }
    return width;
}

/// The part of a cell that is still to be written.
struct Piece
{
    QStringView rest;
    /// Of all of `rest`; below zero if it is not known or there are several lines.
    int restWidth;
    int begin;
    int width;
    Alignment::Code alignment;
    const QString* status;
    int statusBegin;
};
using Pieces = QVarLengthArray<Piece, 16>;

int offset(Alignment::Code alignment, int space)
{
    switch (alignment) {
    case Alignment::Right:
        return space;
    case Alignment::Center:
        return space / 2;
    default:
        return 0;
    }
}

void putLine(TextLines& lines, Piece& piece)
{
    QStringView line = piece.rest;
    int width = piece.restWidth;
    if (width < 0 || width > piece.width) {
        line = takeLine(piece.rest, piece.width);
        width = displayWidth(line);
        piece.restWidth = -1;
    } else {
        piece.rest = QStringView();
    }
    lines.put(piece.begin + offset(piece.alignment, qMax(0, piece.width - width)), line, width);
}

void putPieces(TextLines& lines, Pieces& pieces)
{
    for (bool isLeft = true; isLeft;) {
        isLeft = false;
        for (Piece& piece : pieces) {
            if (!piece.rest.isEmpty())
                putLine(lines, piece);
            if (piece.status)
                lines.put(piece.statusBegin, *piece.status, displayWidth(*piece.status));
            piece.status = nullptr;
            isLeft |= !piece.rest.isEmpty();
        }
        lines.endLine();
    }
}

} // namespace

Alignment::Code TextTable::Column::alignment(Alignment::Code wanted) const
{
    if (wanted != automatic)
        return wanted;
    return isNumeric ? Alignment::Right : Alignment::Left;
}

Alignment::Code TextTable::Column::headerAlignment() const
{
    int asked = alignments & ~(1 << automatic);
    if (alignments & (1 << automatic))
        asked |= 1 << alignment(automatic);
    for (const Alignment::Code all : {Alignment::Right, Alignment::Center}) {
        if (asked == 1 << all)
            return all;
    }
    return Alignment::Left;
}

int TextTable::Column::statusPart() const
{
    if (statusWidth == 0)
        return 0;
    return width > 0 ? gap + statusWidth : statusWidth;
}

TextTable::TextTable(const QString& title, const QStringList& columnLabels)
    : m_title(plainText(title).trimmed())
    , m_columns(columnLabels.size() + 1)
    , m_statusWords {uiutils::statusWord(Status::Pass), uiutils::statusWord(Status::Marginal),
              uiutils::statusWord(Status::Fail)}
{
    for (int i = 0; i < columnLabels.size(); ++i) {
        Column& column = m_columns[i + 1];
        column.label = plainText(columnLabels.at(i)).trimmed();
        column.labelWidth = longestLine(column.label);
        m_hasHeader |= !column.label.isEmpty();
    }
}

const QString* TextTable::statusWord(int status) const
{
    switch (status) {
    case Status::Pass:
        return &m_statusWords[0];
    case Status::Marginal:
        return &m_statusWords[1];
    case Status::Fail:
        return &m_statusWords[2];
    default:
        return nullptr;
    }
}

void TextTable::startRow(const QString& label)
{
    m_rowIsOpen = false;
    append(rowLabelColumn, label, 0, Alignment::Left);
}

void TextTable::addCell(int column, const QString& text, int status, Alignment::Code alignment)
{
    append(column + 1, text, status, alignment);
}

void TextTable::append(int index, const QString& text, int status, Alignment::Code alignment)
{
    const QString* const word = statusWord(status);
    const bool isSimple = isSimpleText(text);
    const QString plain = isSimple ? text : plainText(text);
    const QStringView shown = QStringView(plain).trimmed();
    if (shown.isEmpty() && !word)
        return;

    Column& column = m_columns[index];
    const bool isLine = isSimple || !shown.contains(QLatin1Char('\n'));
    const int width = isSimple ? int(shown.size()) : longestLine(shown);
    column.width = qMax(column.width, width);
    column.alignments |= shown.isEmpty() ? 0 : 1 << alignment;
    if (alignment == automatic && column.isNumeric && !shown.isEmpty())
        column.isNumeric = isLine && isNumber(shown);
    if (word)
        column.statusWidth = qMax(column.statusWidth, displayWidth(*word));

    m_cells.append({m_text.size(), int(shown.size()), isLine ? width : -1, qint16(index), qint8(word ? status : 0),
            alignment});
    m_text.append(shown.data(), int(shown.size()));
    if (m_rowIsOpen)
        m_rowEnds.last() = m_cells.size();
    else
        m_rowEnds.append(m_cells.size());
    m_rowIsOpen = true;
}

bool TextTable::isEmpty() const
{
    return m_title.isEmpty()
            && std::none_of(m_columns.cbegin(), m_columns.cend(), [](const Column& column) { return column.isUsed(); });
}

void TextTable::write(TextLines& lines, int width) const
{
    if (!m_title.isEmpty())
        lines.putText(m_title, width);
    const QVector<Place> columns = places(width);
    if (!columns.isEmpty() && m_hasHeader)
        writeHeader(lines, columns);

    const int lineLength = columns.isEmpty() ? width : columns.constLast().end;
    lines.expect(qMin(qint64(m_rowEnds.size()) * (lineLength + 1), qint64(m_text.size()) * 2 + 1000));
    int begin = 0;
    for (const int end : m_rowEnds) {
        if (!columns.isEmpty()) {
            writeRow(lines, columns, begin, end);
        } else {
            if (begin > 0)
                lines.endLine();
            writeStacked(lines, width, begin, end);
        }
        begin = end;
    }
}

/// The maximum width of a column with which all columns fit into the available width.
int TextTable::fitted(int available) const
{
    QVector<int> widths;
    for (const Column& column : m_columns) {
        if (column.isUsed())
            widths += column.fullWidth();
    }
    std::sort(widths.begin(), widths.end());
    for (int i = 0; i < widths.size(); ++i) {
        const int share = available / (widths.size() - i);
        if (widths.at(i) > share)
            return share;
        available -= widths.at(i);
    }
    return widths.isEmpty() ? 0 : widths.constLast();
}

/// Where the columns are written; nothing if they do not fit beside each other.
QVector<TextTable::Place> TextTable::places(int width) const
{
    int available = width - tableIndentation + gap;
    bool isFull = true;
    for (const Column& column : m_columns) {
        if (column.isUsed())
            available -= gap + column.statusPart();
    }
    const int widest = fitted(available);
    QVector<Place> places(m_columns.size());
    int begin = tableIndentation;
    for (int i = 0; i < m_columns.size(); ++i) {
        const Column& column = m_columns.at(i);
        Place& place = places[i];
        place.begin = begin;
        place.width = qMin(column.fullWidth(), widest);
        isFull &= place.width == column.fullWidth();
        place.end = begin + place.width + column.statusPart();
        place.statusBegin = place.end - column.statusWidth;
        if (column.isUsed())
            begin = place.end + gap;
    }
    return isFull || widest >= narrowestColumn ? places : QVector<Place>();
}

void TextTable::writeHeader(TextLines& lines, const QVector<Place>& places) const
{
    Pieces labels;
    for (int i = 0; i < places.size(); ++i) {
        const Column& column = m_columns.at(i);
        const Place& place = places.at(i);
        // A label that is longer than the cells may extend above their statuses.
        const bool isWide = column.labelWidth > place.width;
        if (column.labelWidth > 0)
            labels.append({column.label, -1, place.begin, isWide ? place.end - place.begin : place.width,
                    isWide ? Alignment::Left : column.headerAlignment(), nullptr, 0});
    }
    putPieces(lines, labels);
    for (const Place& place : places)
        lines.putRule(place.begin, place.end - place.begin, QLatin1Char('-'));
    lines.endLine();
}

void TextTable::writeRow(TextLines& lines, const QVector<Place>& places, int begin, int end) const
{
    Pieces pieces;
    for (int i = begin; i < end; ++i) {
        const Cell& cell = m_cells.at(i);
        const Place& place = places.at(cell.column);
        pieces.append({textOf(cell), cell.width, place.begin, place.width,
                m_columns.at(cell.column).alignment(cell.alignment), statusWord(cell.status), place.statusBegin});
    }
    putPieces(lines, pieces);
}

/// The row's label, and below it a line for each cell.
void TextTable::writeStacked(TextLines& lines, int width, int begin, int end) const
{
    int margin = tableIndentation;
    for (int i = begin; i < end; ++i) {
        const Cell& cell = m_cells.at(i);
        if (cell.column == rowLabelColumn) {
            lines.putText(textOf(cell), width, tableIndentation, tableIndentation);
            margin = 2 * tableIndentation;
            continue;
        }
        QString text = m_columns.at(cell.column).label;
        text += text.isEmpty() ? QString() : QStringLiteral(": ");
        text.append(textOf(cell).data(), cell.size);
        if (const QString* const word = statusWord(cell.status))
            text += (cell.size > 0 ? QString(gap, QLatin1Char(' ')) : QString()) + *word;
        lines.putText(text, width, margin, margin + tableIndentation);
    }
}

} // namespace uiutils
