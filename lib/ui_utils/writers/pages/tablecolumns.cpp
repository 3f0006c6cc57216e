#include "writers/pages/tablecolumns_p.h"

#include "core/numbertext_p.h"
#include "writers/pages/readingside_p.h"
#include "writers/pages/wrappedtext_p.h"

#include <algorithm>
#include <numeric>

namespace uiutils {

namespace {

/// Rows by which the alignment of columns and the type of a table are judged.
constexpr int examinedRows = 64;
/// A table of so many columns is set in smaller type, if they do not fit otherwise.
constexpr int manyColumns = 8;
/// In points: what a column should have beside one with a very long word.
constexpr qreal comfortableWidth = 96;

Qt::Alignment mirrored(Qt::Alignment alignment)
{
    return alignment == Qt::AlignLeft ? Qt::AlignRight : alignment == Qt::AlignRight ? Qt::AlignLeft : alignment;
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

/// Calls visit(row, column, cell) for the cells of the first rows.
template<typename Visitor> void forEachExamined(const ReportTable& table, Visitor visit)
{
    for (int row = 0; row < qMin(examinedRows, table.rowCount()); ++row) {
        for (int column = 0; column < table.columnCount(); ++column) {
            if (const ReportTable::Cell* cell = table.cellAt(row, column))
                visit(column, *cell);
        }
    }
}

/// Whether a table has many columns that are not empty, and more than the width holds.
bool isCrowded(const ReportTable& table, const PageStyle& style, qreal width)
{
    if (table.columnCount() < manyColumns)
        return false;
    QVector<qreal> widths(table.columnCount(), 0);
    const auto widen = [&](int column, const PageFont& font, const QString& text) {
        if (!text.isEmpty())
            widths[column] = qMax(widths.at(column), WrappedText::naturalWidth(font, text) + 2 * style.cellPadding);
    };
    const QStringList labels = table.columnLabels();
    for (int i = 0; i < labels.size(); ++i)
        widen(i + (table.hasLabelColumn() ? 1 : 0), style.bold, labels.at(i));
    forEachExamined(table, [&](int column, const ReportTable::Cell& cell) { widen(column, style.body, cell.text); });
    return std::count_if(widths.cbegin(), widths.cend(), [](qreal w) { return w > 0; }) >= manyColumns
            && std::accumulate(widths.cbegin(), widths.cend(), 0.0) > width;
}

} // namespace

std::unique_ptr<ReportTable> rowAsList(const ReportTable& table)
{
    const int labels = table.hasLabelColumn() ? 1 : 0;
    const ReportTable::Cell* const rowLabel = labels > 0 ? table.cellAt(0, 0) : nullptr;
    auto list = std::make_unique<ReportTable>(table.title(), QStringList {rowLabel ? rowLabel->text : QString()}, true);
    const QStringList columnLabels = table.columnLabels();
    for (int i = 0; i < columnLabels.size(); ++i) {
        const ReportTable::Cell* const cell = table.cellAt(0, i + labels);
        if (columnLabels.at(i).isEmpty() && (!cell || cell->text.isEmpty()))
            continue;
        list->appendCell({columnLabels.at(i), Status::None, Alignment::Right, ReportTable::CellKind::RowLabel});
        if (cell)
            list->appendCell({cell->text, cell->status, cell->alignment});
        list->endRow();
    }
    return list;
}

TableColumns::TableColumns(const ReportTable& table, const PageStyle& style, qreal width)
    : m_table(table)
    , m_style(style)
    , m_width(width)
    , m_isMirrored(false)
    , m_type(style.tableType(isCrowded(table, style, width)))
    , m_labels(table.columnLabels())
    , m_columns(table.columnCount())
{
    m_isMirrored = isReadFromRight();
    forEachExamined(table, [this](int column, const ReportTable::Cell& cell) { judge(cell, m_columns[column]); });
    alignLabels();
    measureLabels();
    measureCells();
    const QVector<ColumnBand> bands
            = columnBands(demands(), width, style.points(comfortableWidth), table.hasLabelColumn() ? 1 : 0);
    for (const ColumnBand& band : bands)
        m_bands += placed(band);
}

/// A title without letters says nothing; then the report's side counts.
bool TableColumns::isReadFromRight() const
{
    const QString heading = m_table.title() + m_labels.join(QLatin1Char(' '));
    return hasReadingSide(heading) ? uiutils::isReadFromRight(heading) : m_style.isMirrored();
}

void TableColumns::judge(const ReportTable::Cell& cell, Column& column) const
{
    if (cell.text.isEmpty())
        return;
    if (cell.alignment == ReportTable::automatic)
        ++(isNumber(cell.text) ? column.numbers : column.texts);
    else
        ++(cell.alignment == Alignment::Right && cell.kind == ReportTable::CellKind::Value ? column.rights
                                                                                           : column.others);
}

void TableColumns::measureLabels()
{
    for (int i = 0; i < m_columns.size(); ++i) {
        const QString label = labelOf(i);
        if (label.isEmpty())
            continue;
        const qreal padding = 2 * m_type.cellPadding + tolerance;
        const WrappedText::Widths widths = WrappedText::widths(m_type.bold, label, m_type.bold.plainWidth(label));
        const qreal piece = WrappedText::pieceWidth(m_type.bold, label);
        m_columns[i].demand = {widths.natural + padding, widths.word + padding, piece + padding};
    }
}

void TableColumns::measureCells()
{
    for (int row = 0; row < m_table.rowCount(); ++row) {
        for (int i = 0; i < m_columns.size(); ++i) {
            if (const ReportTable::Cell* cell = m_table.cellAt(row, i))
                measureCell(*cell, m_columns[i]);
        }
    }
}

void TableColumns::measureCell(const ReportTable::Cell& cell, Column& column) const
{
    const qreal icon = iconSpace(cell);
    if (cell.text.isEmpty() && icon <= 0)
        return;
    const PageFont& font = fontOf(cell);
    const qreal beside = icon + 2 * m_type.cellPadding + tolerance;
    const qreal plainWidth = font.plainWidth(cell.text);
    ColumnDemand& demand = column.demand;
    demand.natural = qMax(demand.natural, plainWidth + beside);
    column.hasPlainLines = column.hasPlainLines && plainWidth >= 0;
    // No word is wider than its text, and no piece wider than its word.
    if (plainWidth >= 0 && plainWidth + beside <= demand.word)
        return;
    const WrappedText::Widths widths = WrappedText::widths(font, cell.text, plainWidth);
    demand.natural = qMax(demand.natural, widths.natural + beside);
    demand.word = qMax(demand.word, widths.word + beside);
    if (widths.word + beside > demand.piece)
        demand.piece = qMax(demand.piece, WrappedText::pieceWidth(font, cell.text) + beside);
}

QVector<ColumnDemand> TableColumns::demands() const
{
    QVector<ColumnDemand> demands;
    demands.reserve(m_columns.size());
    for (const Column& column : m_columns)
        demands += column.demand;
    return demands;
}

/// What is aligned to the right stands below each other, but not at the far side of a column that is wider than needed:
/// it would be far from what it belongs to.
TableColumns::Band TableColumns::placed(const ColumnBand& band) const
{
    Band places;
    qreal begin = 0;
    for (const ColumnWidth& width : band) {
        const Column& column = m_columns.at(width.column);
        const bool isBlock = column.isAllRight() && !m_isMirrored;
        const qreal used = isBlock ? qMin(width.width, column.demand.natural) : width.width;
        const qreal left = m_isMirrored ? m_width - begin - width.width : begin;
        places.append({width.column, left + m_type.cellPadding, used - 2 * m_type.cellPadding + tolerance});
        begin += width.width;
    }
    return places;
}

bool TableColumns::areLines(const Place& place) const
{
    const Column& column = m_columns.at(place.column);
    return column.hasPlainLines && column.demand.natural <= place.width + 2 * m_type.cellPadding;
}

const PageFont& TableColumns::fontOf(const ReportTable::Cell& cell) const
{
    return cell.kind == ReportTable::CellKind::RowLabel ? m_type.bold : m_type.body;
}

qreal TableColumns::iconSpace(const ReportTable::Cell& cell) const
{
    if (!m_style.hasStatusIcon(cell.status))
        return 0;
    return m_type.lineHeight() + (cell.text.isEmpty() ? 0 : m_type.cellPadding);
}

QString TableColumns::labelOf(int column) const
{
    return m_labels.value(m_table.hasLabelColumn() ? column - 1 : column);
}

Qt::Alignment TableColumns::alignmentOf(const ReportTable::Cell& cell, int column) const
{
    if (cell.alignment == ReportTable::automatic)
        return m_isMirrored || m_columns.at(column).isNumeric() ? Qt::AlignRight : Qt::AlignLeft;
    const Qt::Alignment alignment = alignmentFor(cell.alignment);
    // The digits of numbers stay below each other.
    return m_isMirrored && !isNumber(cell.text) ? mirrored(alignment) : alignment;
}

void TableColumns::alignLabels()
{
    static const ReportTable::Cell none {{}, Status::None, ReportTable::automatic};
    for (int column = 0; column < m_columns.size(); ++column) {
        const ReportTable::Cell* const cell = m_table.rowCount() > 0 ? m_table.cellAt(0, column) : nullptr;
        m_labelAlignments += alignmentOf(cell ? *cell : none, column);
    }
}

} // namespace uiutils
