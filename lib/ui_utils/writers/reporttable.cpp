#include "writers/reporttable.h"

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

void ReportTable::appendCell(const Cell& cell)
{
    m_cells.append(cell);
}

void ReportTable::endRow()
{
    if (hasOpenRow())
        m_rowEnds.append(m_cells.size());
}

int ReportTable::rowCount() const
{
    return m_rowEnds.size() + (hasOpenRow() ? 1 : 0);
}

QVector<ReportTable::Cell> ReportTable::row(int index) const
{
    const int begin = index == 0 ? 0 : m_rowEnds.at(index - 1);
    const int end = index < m_rowEnds.size() ? m_rowEnds.at(index) : m_cells.size();
    return m_cells.mid(begin, end - begin);
}
