#include "writers/pages/reporttable.h"

#include "writers/pages/tablelayout_p.h"
#include "writers/pages/tablerowsource_p.h"

ReportTable::ReportTable(const QString& title, const QStringList& columnLabels, bool hasLabelColumn)
    : m_title(title)
    , m_valueColumns(columnLabels.size())
    , m_hasLabelColumn(hasLabelColumn)
{
    for (int column = 0; column < m_valueColumns; ++column) {
        if (!columnLabels.at(column).isEmpty())
            m_labels.append({column, columnLabels.at(column)});
    }
}

ReportTable::~ReportTable() = default;

QStringList ReportTable::columnLabels() const
{
    QStringList labels;
    labels.reserve(m_valueColumns);
    for (const Label& label : m_labels) {
        while (labels.size() < label.column)
            labels += QString();
        labels += label.text;
    }
    while (labels.size() < m_valueColumns)
        labels += QString();
    return labels;
}

void ReportTable::readRowsFrom(std::unique_ptr<uiutils::TableRowSource> rows)
{
    m_source = std::move(rows);
    m_hasSpans = true;
}

/// Rows of the application's own follow those that were read.
void ReportTable::storeRows()
{
    const std::unique_ptr<uiutils::TableRowSource> source = std::move(m_source);
    for (int row = 0; row < source->count(); ++row) {
        m_cells += source->row(row);
        endRow();
    }
}

void ReportTable::appendCell(const Cell& cell)
{
    if (m_source)
        storeRows();
    m_hasSpans = m_hasSpans || cell.columnSpan > 1;
    m_cells.append(cell);
}

void ReportTable::endRow()
{
    if (hasOpenRow())
        m_rowEnds.append(m_cells.size());
}

int ReportTable::rowCount() const
{
    return m_source ? m_source->count() : m_rowEnds.size() + (hasOpenRow() ? 1 : 0);
}

QVector<ReportTable::Cell> ReportTable::row(int index) const
{
    if (m_source)
        return m_source->row(index);
    return m_cells.mid(rowBegin(index), rowEnd(index) - rowBegin(index));
}

const ReportTable::Cell* ReportTable::cellAt(int row, int column) const
{
    if (m_source) {
        const QVector<Cell>& cells = m_source->row(row);
        return findCell(cells.constBegin(), cells.constEnd(), column);
    }
    return findCell(m_cells.constData() + rowBegin(row), m_cells.constData() + rowEnd(row), column);
}

const ReportTable::Cell* ReportTable::findCell(const Cell* cell, const Cell* end, int column) const
{
    if (!m_hasSpans)
        return column < end - cell ? cell + column : nullptr;
    int at = 0;
    for (; cell != end && at < column; ++cell)
        at += cell->columnSpan;
    return cell != end && at == column ? cell : nullptr;
}

void ReportTable::measure(const uiutils::PageStyle& style, const QSizeF& page)
{
    m_layout = uiutils::TableLayout::of(*this, style, page);
}

bool ReportTable::isWide() const
{
    return m_layout && m_layout->isWide();
}

void ReportTable::release()
{
    m_layout.reset();
}

ReportItem::Position ReportTable::end() const
{
    return {m_layout->rowCount(), 0};
}

ReportItem::Portion ReportTable::split(const Position& begin, qreal room, bool isWholePage) const
{
    return m_layout->split(begin, room, isWholePage);
}

void ReportTable::draw(uiutils::PageCanvas& canvas, const Portion& portion, const QPointF& topLeft) const
{
    m_layout->draw(canvas, portion, topLeft);
}

qreal ReportTable::spaceAbove() const
{
    return m_layout->spaceAbove();
}
