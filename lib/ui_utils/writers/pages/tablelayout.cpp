#include "writers/pages/tablelayout_p.h"

#include "core/statusword_p.h"
#include "writers/pages/pagecanvas_p.h"
#include "writers/pages/readingside_p.h"
#include "writers/pages/wrappedtext_p.h"

#include <QCoreApplication>

#include <algorithm>

namespace uiutils {

namespace {

constexpr int maximumTitleLines = 3;
constexpr qreal maximumCenteredLines = 2;
/// A longer text counts as a paragraph, and is not examined on each page on which it continues.
constexpr int maximumLabelLength = 400;
/// Rows on the first page of a table that continues on the next.
constexpr int leastRows = 3;
/// Rows on the last page of a table.
constexpr int leastLastRows = 2;
/// Of a page's height: a table of at most this height is not split.
constexpr qreal maximumMovedShare = 0.25;
/// Of a page's height, for labels that are repeated on each page.
constexpr qreal maximumLabelShare = 0.25;

/// Estimated.
bool isParagraph(const PageFont& font, const QString& text, qreal width)
{
    if (text.size() > maximumLabelLength)
        return true;
    const qreal plainWidth = font.plainWidth(text);
    return (plainWidth < 0 ? text.size() * font.lineHeight() / 2 : plainWidth) > maximumCenteredLines * width;
}

PageStructure::CellKind kindOf(const ReportTable::Cell& cell)
{
    return cell.kind == ReportTable::CellKind::RowLabel ? PageStructure::RowLabel : PageStructure::Value;
}

} // namespace

std::unique_ptr<TableLayout> TableLayout::of(const ReportTable& table, const PageStyle& style, const QSizeF& page)
{
    auto layout = std::make_unique<TableLayout>(table, style, page);
    if (table.rowCount() != 1 || layout->m_columns.bands().size() < 2)
        return layout;
    auto list = rowAsList(table);
    layout = std::make_unique<TableLayout>(*list, style, page);
    layout->m_list = std::move(list);
    return layout;
}

TableLayout::TableLayout(const ReportTable& table, const PageStyle& style, const QSizeF& page)
    : m_table(table)
    , m_style(style)
    , m_page(page)
    , m_columns(table, style, page.width())
    , m_type(m_columns.type())
    , m_heights {m_type.lineHeight(), 2 * m_type.rowPadding}
    , m_rowsOfABand(qMax(1, table.rowCount()))
{
    int bands = m_columns.bands().size();
    if (!table.title().isEmpty()) {
        m_title = makeTitle(shortTitle(table.title()));
        m_continuedTitle = makeTitle(QCoreApplication::translate("ReportPDF", "%1 - Continued").arg(m_title.text));
        bands = qMax(1, bands);
    }
    m_lines.fill(1, bands * m_rowsOfABand);
    for (int band = 0; band < bands; ++band) {
        measureLabels(band);
        measureRows(band);
    }
}

QString TableLayout::shortTitle(const QString& text) const
{
    return WrappedText::elided(m_style.tableTitle, text, m_page.width() - 2 * m_style.cellPadding, maximumTitleLines);
}

TableLayout::Title TableLayout::makeTitle(const QString& text) const
{
    return {text, WrappedText(m_style.tableTitle, text, m_page.width() - 2 * m_style.cellPadding).lineCount()};
}

void TableLayout::measureLabels(int band)
{
    const int maximum = qMax(1, int(m_page.height() * maximumLabelShare / m_type.bold.lineHeight()));
    int lines = 0;
    QStringList shown;
    for (const TableColumns::Place& place : m_columns.bands().value(band)) {
        QString label = m_columns.labelOf(place.column);
        if (!label.isEmpty()) {
            label = WrappedText::elided(m_type.bold, label, place.width, maximum);
            lines = qMax(lines, WrappedText(m_type.bold, label, place.width).lineCount());
        }
        shown += label;
    }
    m_labelLines += lines;
    m_shownLabels += shown;
}

void TableLayout::measureRows(int band)
{
    TableColumns::Band places = m_columns.bands().value(band);
    const auto isDone = [this](const TableColumns::Place& place) { return m_columns.areLines(place); };
    places.erase(std::remove_if(places.begin(), places.end(), isDone), places.end());
    if (places.isEmpty())
        return;
    int* lines = m_lines.data() + qptrdiff(band) * m_rowsOfABand;
    for (int row = 0; row < m_table.rowCount(); ++row, ++lines) {
        for (const TableColumns::Place& place : qAsConst(places))
            *lines = qMax(*lines, linesOf(m_table.cellAt(row, place.column), place.width));
    }
}

int TableLayout::linesOf(const ReportTable::Cell* cell, qreal width) const
{
    if (!cell || cell->text.isEmpty())
        return 1;
    const PageFont& font = m_columns.fontOf(*cell);
    const qreal room = width - m_columns.iconSpace(*cell);
    const qreal plainWidth = font.plainWidth(cell->text);
    return plainWidth < 0 || plainWidth > room ? WrappedText(font, cell->text, room).lineCount() : 1;
}

const TableLayout::Title& TableLayout::titleAt(const ReportItem::Position& begin) const
{
    return begin == ReportItem::Position() ? m_title : m_continuedTitle;
}

qreal TableLayout::titleHeight(const Title& title) const
{
    return title.lines == 0 ? 0 : title.lines * m_style.tableTitle.lineHeight() + 2 * m_style.rowPadding;
}

qreal TableLayout::labelsHeight(int band) const
{
    const int lines = m_labelLines.at(band);
    return lines == 0 ? 0 : lines * m_type.bold.lineHeight() + 2 * m_type.rowPadding;
}

qreal TableLayout::headHeight(const ReportItem::Position& begin) const
{
    return titleHeight(titleAt(begin)) + labelsHeight(bandOf(begin));
}

qreal TableLayout::spaceAbove() const
{
    return m_style.points(8);
}

ReportItem::Portion TableLayout::split(const ReportItem::Position& begin, qreal room, bool isWholePage) const
{
    const qreal head = headHeight(begin);
    const int bandEnd = (bandOf(begin) + 1) * m_rowsOfABand;
    const bool mayTear = isWholePage || (begin == ReportItem::Position() && isFirstRowTornAnyway(room));
    ReportItem::Portion portion = takeRows(m_lines, m_heights, begin, bandEnd, room - head, mayTear);
    keepLastRowsTogether(portion);
    if (portion.isEmpty() || (!isWholePage && isBetterMoved(portion, bandEnd)))
        return {begin, begin, 0};
    portion.height += head + (isLastOfBand(portion) ? spaceAbove() : 0);
    return portion;
}

/// Whether another band begins below the portion.
bool TableLayout::isLastOfBand(const ReportItem::Portion& portion) const
{
    return portion.end.line == 0 && portion.end.row % m_rowsOfABand == 0 && portion.end.row < m_lines.size();
}

/// Leaves a row for the next page, if otherwise one row would be alone there.
void TableLayout::keepLastRowsTogether(ReportItem::Portion& portion) const
{
    const int bandEnd = (bandOf(portion.begin) + 1) * m_rowsOfABand;
    const int firstWhole = portion.begin.row + (portion.begin.line > 0 ? 1 : 0);
    if (portion.end.line > 0 || bandEnd - portion.end.row >= leastLastRows || portion.end.row == bandEnd
            || portion.end.row - firstWhole < leastLastRows)
        return;
    --portion.end.row;
    portion.height -= m_heights.of(m_lines.at(portion.end.row));
}

/// Whether a row that does not fit on any page should begin here, instead of leaving much of this page empty.
bool TableLayout::isFirstRowTornAnyway(qreal room) const
{
    return room > m_page.height() * maximumMovedShare
            && m_heights.of(m_lines.constFirst()) > m_page.height() - headHeight({});
}

/// Whether the beginning of a table is too little for the foot of a page: a few low rows of many, or part of a table
/// that is easier to read in one piece.
bool TableLayout::isBetterMoved(const ReportItem::Portion& portion, int bandEnd) const
{
    const bool begins = portion.begin.line == 0 && portion.begin.row % m_rowsOfABand == 0;
    if (!begins || portion.end.row == bandEnd)
        return false;
    if (portion.end.row - portion.begin.row < leastRows && portion.height < m_page.height() * maximumMovedShare)
        return true;
    const qreal room = m_page.height() * maximumMovedShare - headHeight(portion.begin);
    return takeRows(m_lines, m_heights, portion.begin, bandEnd, room, false).end.row == bandEnd;
}

template<typename Visitor> void TableLayout::forEachRow(const ReportItem::Portion& portion, Visitor visit) const
{
    ReportItem::Position at = portion.begin;
    while (at != portion.end) {
        const bool isWhole = at.row < portion.end.row;
        const int endLine = isWhole ? m_lines.at(at.row) : portion.end.line;
        visit(at.row, at.line, endLine, m_heights.of(endLine - at.line));
        at = isWhole ? ReportItem::Position {at.row + 1, 0} : portion.end;
    }
}

void TableLayout::draw(PageCanvas& canvas, const ReportItem::Portion& portion, const QPointF& topLeft) const
{
    const int band = bandOf(portion.begin);
    const Title& title = titleAt(portion.begin);
    const QRectF titlePlace(topLeft, QSizeF(m_page.width(), titleHeight(title)));
    const QRectF labelsPlace(titlePlace.bottomLeft(), QSizeF(m_page.width(), labelsHeight(band)));
    drawBackground(canvas, portion, titlePlace, labelsPlace);

    // Columns that continue below are a table of their own for those who have it read aloud.
    const bool begins = portion.begin.line == 0 && portion.begin.row % m_rowsOfABand == 0;
    if (begins)
        canvas.structure().beginTable();
    drawTitle(canvas, title, titlePlace, begins);
    drawLabels(canvas, band, labelsPlace, begins);
    QPointF at = labelsPlace.bottomLeft();
    forEachRow(portion, [&](int row, int beginLine, int endLine, qreal height) {
        if (beginLine == 0)
            canvas.structure().beginRow();
        drawRow(canvas, band, row, beginLine, endLine, at);
        if (endLine == m_lines.at(row))
            canvas.structure().endRow();
        at.ry() += height;
    });
    if (portion.end.line == 0)
        canvas.forgetParts();
    if (portion.end.line == 0 && portion.end.row % m_rowsOfABand == 0)
        canvas.structure().endTable();
}

void TableLayout::drawBackground(
        PageCanvas& canvas, const ReportItem::Portion& portion, const QRectF& title, const QRectF& labels) const
{
    if (title.height() > 0)
        canvas.fill(title, m_style.accent);
    if (labels.height() > 0)
        canvas.fill(labels, m_style.labelFill);
    drawStripes(canvas, portion, labels.bottomLeft());
    const qreal height = portion.height - (isLastOfBand(portion) ? spaceAbove() : 0);
    canvas.frame({title.topLeft(), QSizeF(m_page.width(), height)}, m_style.rule);
}

void TableLayout::drawTitle(PageCanvas& canvas, const Title& title, const QRectF& place, bool begins) const
{
    if (title.lines == 0)
        return;
    const auto mark = begins ? canvas.structure().caption() : canvas.structure().artifact(pdf::PageContent::Text);
    canvas.drawText(m_style.tableTitle, title.text, place.topLeft() + QPointF(m_style.cellPadding, m_style.rowPadding),
            place.width() - 2 * m_style.cellPadding, m_columns.isMirrored() ? Qt::AlignRight : Qt::AlignLeft,
            m_style.onAccent, 0, title.lines);
}

void TableLayout::drawLabels(PageCanvas& canvas, int band, const QRectF& place, bool begins) const
{
    if (m_labelLines.at(band) == 0)
        return;
    if (begins)
        canvas.structure().beginRow();
    const TableColumns::Band columns = m_columns.bands().value(band);
    for (int i = 0; i < columns.size(); ++i) {
        const TableColumns::Place& column = columns.at(i);
        const QString& label = m_shownLabels.at(band).at(i);
        const auto mark = begins ? canvas.structure().cell(i, PageStructure::ColumnLabel, 1, label.isEmpty())
                                 : canvas.structure().artifact(pdf::PageContent::Text);
        canvas.drawText(m_type.bold, label, place.topLeft() + QPointF(column.left, m_type.rowPadding), column.width,
                m_columns.labelAlignment(column.column), m_style.ink, 0, m_labelLines.at(band));
    }
    if (begins)
        canvas.structure().endRow();
}

/// Under every other row, drawn together: a colour for each row would take more space in the file than the row's text.
void TableLayout::drawStripes(PageCanvas& canvas, const ReportItem::Portion& portion, const QPointF& topLeft) const
{
    QVector<QRectF> stripes;
    qreal top = topLeft.y();
    forEachRow(portion, [&](int row, int, int, qreal height) {
        if (row % m_rowsOfABand % 2 == 0)
            stripes += QRectF(topLeft.x(), top, m_page.width(), height);
        top += height;
    });
    if (!stripes.isEmpty())
        canvas.fill(stripes, m_style.stripeFill);
}

void TableLayout::drawRow(
        PageCanvas& canvas, int band, int row, int beginLine, int endLine, const QPointF& topLeft) const
{
    const int tableRow = row % m_rowsOfABand;
    if (tableRow >= m_table.rowCount() || band >= m_columns.bands().size())
        return;
    const QPointF at = topLeft + QPointF(0, m_type.rowPadding);
    const TableColumns::Band& columns = m_columns.bands().at(band);
    for (int i = 0; i < columns.size(); ++i) {
        const ReportTable::Cell* const cell = m_table.cellAt(tableRow, columns.at(i).column);
        if (!cell || (beginLine > 0 && drawAgain(canvas, *cell, columns.at(i), at, beginLine, endLine)))
            continue;
        if (m_columns.iconSpace(*cell) > 0)
            drawJudged(canvas, *cell, i, columns.at(i), at, beginLine, endLine);
        else
            drawCell(canvas, *cell, i, columns.at(i), at, beginLine, endLine);
    }
}

/// Repeats the label of a row that has begun on another page, unless the label itself goes on.
bool TableLayout::drawAgain(PageCanvas& canvas, const ReportTable::Cell& cell, const TableColumns::Place& place,
        const QPointF& topLeft, int beginLine, int endLine) const
{
    if (cell.kind != ReportTable::CellKind::RowLabel
            || WrappedText(m_type.bold, cell.text, place.width).lineCount() > beginLine)
        return false;
    const auto mark = canvas.structure().artifact(pdf::PageContent::Text);
    canvas.drawText(m_type.bold, cell.text, topLeft + QPointF(place.left, 0), place.width,
            m_columns.alignmentOf(cell, place.column), m_style.ink, 0, endLine - beginLine);
    return true;
}

void TableLayout::drawCell(PageCanvas& canvas, const ReportTable::Cell& cell, int column,
        const TableColumns::Place& place, const QPointF& topLeft, int beginLine, int endLine) const
{
    const PageFont& font = m_columns.fontOf(cell);
    Qt::Alignment alignment = m_columns.alignmentOf(cell, place.column);
    // A paragraph is aligned to its side, even if figures are centred.
    if (alignment == Qt::AlignHCenter && isParagraph(font, cell.text, place.width))
        alignment = readingSideOf(cell.text);
    const auto mark = canvas.structure().cell(column, kindOf(cell), cell.columnSpan, cell.text.isEmpty());
    canvas.drawText(
            font, cell.text, topLeft + QPointF(place.left, 0), place.width, alignment, m_style.ink, beginLine, endLine);
}

/// A cell with the icon of its status, which is on the side from which the table is read. Icon and text together are
/// where the text alone would be.
void TableLayout::drawJudged(PageCanvas& canvas, const ReportTable::Cell& cell, int column,
        const TableColumns::Place& place, const QPointF& topLeft, int beginLine, int endLine) const
{
    const PageFont& font = m_columns.fontOf(cell);
    const Qt::Alignment alignment = m_columns.alignmentOf(cell, place.column);
    const qreal icon = m_columns.iconSpace(cell);
    // With another width than it was measured with, the text might be broken differently.
    const qreal room = place.width - icon;
    const bool isLong = cell.text.size() > maximumLabelLength;
    const qreal spare = isLong ? 0 : qMax(0.0, room - WrappedText::naturalWidth(font, cell.text));
    const qreal indent = alignment == Qt::AlignLeft ? 0 : alignment == Qt::AlignRight ? spare : spare / 2;
    const qreal right = place.left + indent + room - spare;
    const qreal iconLeft = m_columns.isMirrored() ? right + icon - m_heights.line : place.left + indent;
    const QRectF iconPlace(topLeft + QPointF(iconLeft, 0), QSizeF(m_heights.line, m_heights.line));
    if (beginLine == 0)
        canvas.drawStatusIcon(cell.status, iconPlace);
    const auto mark = canvas.structure().cell(column, kindOf(cell), cell.columnSpan, false);
    if (beginLine == 0)
        canvas.drawStatusWord(cell.status, cell.text, iconPlace);
    const qreal textLeft = place.left + indent + (m_columns.isMirrored() ? 0 : icon);
    canvas.drawText(font, cell.text, topLeft + QPointF(textLeft, 0), room,
            spare > 0 ? Qt::AlignLeft : readingSideOf(cell.text), m_style.ink, beginLine, endLine);
}

} // namespace uiutils
