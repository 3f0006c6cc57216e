#include "writers/pages/tablelayout_p.h"

#include "writers/pages/pagecanvas_p.h"
#include "writers/pages/pagestyle_p.h"
#include "writers/pages/wrappedtext_p.h"

#include <QCoreApplication>

namespace uiutils {

namespace {

constexpr int maximumTitleLines = 3;
constexpr qreal maximumCenteredLines = 2;
/// A longer text counts as a paragraph, and is not examined on each page on which it continues.
constexpr int maximumLabelLength = 400;
/// Rows on the first page of a table that continues on the next.
constexpr int leastRows = 3;
/// Of a page's height: a table of at most this height is not split.
constexpr qreal maximumMovedShare = 0.25;
/// Of a page's height, for labels that are repeated on each page.
constexpr qreal maximumLabelShare = 0.25;
/// In points: columns that would be narrower move to another band.
constexpr qreal leastColumnWidth = 48;
/// A width that was measured still holds its text after rounding.
constexpr qreal tolerance = 0.01;

/// Estimated.
bool isParagraph(const PageFont& font, const QString& text, qreal width)
{
    if (text.size() > maximumLabelLength)
        return true;
    const qreal plainWidth = font.plainWidth(text);
    return (plainWidth < 0 ? text.size() * font.lineHeight() / 2 : plainWidth) > maximumCenteredLines * width;
}

Qt::Alignment alignmentFor(int code)
{
    switch (code) {
    case Alignment::Left:
        return Qt::AlignLeft;
    case Alignment::Right:
        return Qt::AlignRight;
    default:
        return Qt::AlignHCenter;
    }
}

Qt::Alignment readingSideOf(const QString& text)
{
    return text.isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft;
}

} // namespace

TableLayout::TableLayout(const ReportTable& table, const PageStyle& style, const QSizeF& page)
    : m_table(table)
    , m_style(style)
    , m_page(page)
    , m_heights {qMax(style.body.lineHeight(), style.bold.lineHeight()), 2 * style.rowPadding}
    , m_labels(table.columnLabels())
    , m_rowsOfABand(qMax(1, table.rowCount()))
{
    m_bands = columnBands(demands(), page.width(), style.points(leastColumnWidth), table.hasLabelColumn() ? 1 : 0);
    if (!table.title().isEmpty()) {
        m_title = makeTitle(shortTitle(table.title()));
        m_continuedTitle = makeTitle(QCoreApplication::translate("ReportPDF", "%1 - Continued").arg(m_title.text));
        if (m_bands.isEmpty())
            m_bands += ColumnBand();
    }
    m_lines.fill(1, m_bands.size() * m_rowsOfABand);
    for (int band = 0; band < m_bands.size(); ++band) {
        measureLabels(band);
        measureRows(band);
    }
}

const PageFont& TableLayout::fontOf(const ReportTable::Cell& cell) const
{
    return cell.kind == ReportTable::CellKind::RowLabel ? m_style.bold : m_style.body;
}

qreal TableLayout::iconSpace(const ReportTable::Cell& cell) const
{
    if (!m_style.hasStatusIcon(cell.status))
        return 0;
    return m_heights.line + (cell.text.isEmpty() ? 0 : m_style.cellPadding);
}

QString TableLayout::labelOf(int column) const
{
    return m_labels.value(m_table.hasLabelColumn() ? column - 1 : column);
}

/// A label is aligned like the first value of its column.
Qt::Alignment TableLayout::alignmentOf(int column) const
{
    const ReportTable::Cell* const cell = m_table.rowCount() > 0 ? m_table.cellAt(0, column) : nullptr;
    return alignmentFor(cell ? cell->alignment : qint8(Alignment::Center));
}

QVector<ColumnDemand> TableLayout::demands() const
{
    QVector<ColumnDemand> demands(m_table.columnCount());
    const qreal padding = 2 * m_style.cellPadding;
    for (int column = 0; column < demands.size(); ++column) {
        const QString label = labelOf(column);
        if (!label.isEmpty()) {
            demands[column].natural = WrappedText::naturalWidth(m_style.bold, label) + padding;
            demands[column].minimal = WrappedText::minimalWidth(m_style.bold, label) + padding;
        }
    }
    for (int row = 0; row < m_table.rowCount(); ++row) {
        for (int column = 0; column < demands.size(); ++column) {
            if (const ReportTable::Cell* cell = m_table.cellAt(row, column))
                demandFor(*cell, demands[column]);
        }
    }
    return demands;
}

void TableLayout::demandFor(const ReportTable::Cell& cell, ColumnDemand& demand) const
{
    const qreal icon = iconSpace(cell);
    if (cell.text.isEmpty() && icon <= 0)
        return;
    const qreal beside = icon + 2 * m_style.cellPadding + tolerance;
    const qreal natural = WrappedText::naturalWidth(fontOf(cell), cell.text) + beside;
    demand.natural = qMax(demand.natural, natural);
    // No word is wider than its text.
    if (natural > demand.minimal)
        demand.minimal = qMax(demand.minimal, WrappedText::minimalWidth(fontOf(cell), cell.text) + beside);
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
    const int maximum = qMax(1, int(m_page.height() * maximumLabelShare / m_style.bold.lineHeight()));
    int lines = 0;
    QStringList shown;
    for (const ColumnWidth& column : m_bands.at(band)) {
        const qreal width = column.width - 2 * m_style.cellPadding + tolerance;
        QString label = labelOf(column.column);
        if (!label.isEmpty()) {
            label = WrappedText::elided(m_style.bold, label, width, maximum);
            lines = qMax(lines, WrappedText(m_style.bold, label, width).lineCount());
        }
        shown += label;
    }
    m_labelLines += lines;
    m_shownLabels += shown;
}

void TableLayout::measureRows(int band)
{
    for (const ColumnWidth& column : m_bands.at(band)) {
        const qreal width = column.width - 2 * m_style.cellPadding + tolerance;
        int* lines = m_lines.data() + qptrdiff(band) * m_rowsOfABand;
        for (int row = 0; row < m_table.rowCount(); ++row, ++lines) {
            const ReportTable::Cell* const cell = m_table.cellAt(row, column.column);
            if (!cell || cell->text.isEmpty())
                continue;
            const qreal room = width - iconSpace(*cell);
            const qreal plainWidth = fontOf(*cell).plainWidth(cell->text);
            if (plainWidth < 0 || plainWidth > room)
                *lines = qMax(*lines, WrappedText(fontOf(*cell), cell->text, room).lineCount());
        }
    }
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
    return lines == 0 ? 0 : lines * m_style.bold.lineHeight() + 2 * m_style.rowPadding;
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
    if (portion.isEmpty() || (!isWholePage && isBetterMoved(portion, bandEnd)))
        return {begin, begin, 0};
    portion.height += head;
    return portion;
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
    canvas.frame({title.topLeft(), QSizeF(m_page.width(), portion.height)}, m_style.rule);
}

void TableLayout::drawTitle(PageCanvas& canvas, const Title& title, const QRectF& place, bool begins) const
{
    if (title.lines == 0)
        return;
    const auto mark = begins ? canvas.structure().caption() : canvas.structure().artifact(pdf::PageContent::Text);
    canvas.drawText(m_style.tableTitle, title.text, place.topLeft() + QPointF(m_style.cellPadding, m_style.rowPadding),
            place.width() - 2 * m_style.cellPadding, readingSideOf(m_table.title()), m_style.onAccent, 0, title.lines);
}

void TableLayout::drawLabels(PageCanvas& canvas, int band, const QRectF& place, bool begins) const
{
    if (m_labelLines.at(band) == 0)
        return;
    if (begins)
        canvas.structure().beginRow();
    qreal x = place.left() + m_style.cellPadding;
    for (int i = 0; i < m_bands.at(band).size(); ++i) {
        const ColumnWidth& column = m_bands.at(band).at(i);
        const QString& label = m_shownLabels.at(band).at(i);
        const auto mark = begins
                ? canvas.structure().cell(i, PageStructure::ColumnLabel, 1, label.isEmpty())
                : canvas.structure().artifact(pdf::PageContent::Text);
        canvas.drawText(m_style.bold, label, {x, place.top() + m_style.rowPadding},
                column.width - 2 * m_style.cellPadding + tolerance, alignmentOf(column.column), m_style.ink, 0,
                m_labelLines.at(band));
        x += column.width;
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
    if (tableRow >= m_table.rowCount())
        return;
    qreal x = topLeft.x() + m_style.cellPadding;
    const ColumnBand& columns = m_bands.at(band);
    for (int i = 0; i < columns.size(); ++i) {
        if (const ReportTable::Cell* cell = m_table.cellAt(tableRow, columns.at(i).column))
            drawCell(canvas, *cell, i, {x, topLeft.y() + m_style.rowPadding},
                    columns.at(i).width - 2 * m_style.cellPadding + tolerance, beginLine, endLine);
        x += columns.at(i).width;
    }
}

void TableLayout::drawCell(PageCanvas& canvas, const ReportTable::Cell& cell, int column, const QPointF& topLeft,
        qreal width, int beginLine, int endLine) const
{
    const PageFont& font = fontOf(cell);
    Qt::Alignment alignment = alignmentFor(cell.alignment);
    const qreal icon = iconSpace(cell);
    const bool isLabel = cell.kind == ReportTable::CellKind::RowLabel;
    const auto mark = [&] {
        return canvas.structure().cell(column, isLabel ? PageStructure::RowLabel : PageStructure::Value,
                cell.columnSpan, icon <= 0 && cell.text.isEmpty());
    };
    if (icon <= 0) {
        // A paragraph is aligned to its side, even if figures are centred.
        if (alignment == Qt::AlignHCenter && isParagraph(font, cell.text, width))
            alignment = readingSideOf(cell.text);
        const auto marked = mark();
        canvas.drawText(font, cell.text, topLeft, width, alignment, m_style.ink, beginLine, endLine);
        return;
    }
    // Icon and text together are where the text alone would be. With another width than it was measured with, the text
    // might be broken differently.
    const qreal room = width - icon;
    const bool isLong = cell.text.size() > maximumLabelLength;
    const qreal spare = isLong ? 0 : qMax(0.0, room - WrappedText::naturalWidth(font, cell.text));
    const qreal indent = alignment == Qt::AlignLeft ? 0 : alignment == Qt::AlignRight ? spare : spare / 2;
    const QRectF iconPlace(topLeft + QPointF(indent, 0), QSizeF(m_heights.line, m_heights.line));
    if (beginLine == 0)
        canvas.drawStatusIcon(cell.status, iconPlace);
    const auto marked = mark();
    if (beginLine == 0)
        canvas.drawStatusWord(cell.status, cell.text, iconPlace);
    canvas.drawText(font, cell.text, topLeft + QPointF(indent + icon, 0), room,
            spare > 0 ? Qt::AlignLeft : readingSideOf(cell.text), m_style.ink, beginLine, endLine);
}

} // namespace uiutils
