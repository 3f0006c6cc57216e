#include "writers/html/documentrows_p.h"

#include "writers/pages/reporttable.h"

namespace uiutils {

namespace {

constexpr int mostColumns = 8;

/// Takes the cells of a row for a report item.
class ItemCells
{
public:
    explicit ItemCells(QVector<ReportCell>& cells)
        : m_cells(cells)
    {
    }

    void writeHeaderCell(const QString& text, int align)
    {
        m_cells.append({text, Status::None, qint8(align), ReportCell::Kind::RowLabel, 1});
    }
    void writeCell(const QString& text, int status, int align) { m_cells.append({text, status, qint8(align)}); }
    void writeEmptyCells(int columns)
    {
        if (columns > 0)
            m_cells.append({{}, Status::None, Alignment::Center, ReportCell::Kind::Value, quint16(columns)});
    }

private:
    QVector<ReportCell>& m_cells;
};

} // namespace

int statusOf(const QJsonObject& cell)
{
    return textOf(cell.value(keys::statusAttribute)).toInt();
}

int alignmentOf(const QJsonObject& cell)
{
    const QString alignment = textOf(cell.value(keys::alignAttribute));
    return alignment.isEmpty() ? ReportTable::automatic : qMax(0, alignment.toInt());
}

bool DocumentRows::canRead(const TableReader& table)
{
    return table.columnCount() > 0 && table.columnCount() <= mostColumns;
}

DocumentRows::DocumentRows(const TableReader& table)
    : m_table(table)
    , m_hasLabels(table.usesRowLabels())
    , m_places(table.rowPlaces())
{
}

void DocumentRows::read(int index, QVector<ReportCell>& cells) const
{
    ItemCells taken(cells);
    writeRow(m_table, m_hasLabels, m_table.rowAt(m_places.at(index)), taken);
}

} // namespace uiutils
