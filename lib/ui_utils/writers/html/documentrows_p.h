#pragma once

#include "core/status.h"
#include "document/documentreader_p.h"
#include "writers/pages/tablerowsource_p.h"

#include <QJsonObject>
#include <QVector>

namespace uiutils {

/// The status of a document's cell: a code of uiutils::Status.
int statusOf(const QJsonObject& cell);
/// The alignment of a document's cell on pages: a code of uiutils::Alignment, or ReportTable::automatic.
int alignmentOf(const QJsonObject& cell);

/// Writes the cells of a document's row to what takes cells as HtmlStreamWriter does.
template<typename Writer> void writeRow(const TableReader& table, bool hasLabel, const QJsonObject& row, Writer& writer)
{
    if (hasLabel)
        writer.writeHeaderCell(shownTextOf(row.value(keys::label)), Alignment::Right);
    int missing = 0;
    for (int column = 0; column < table.columnCount(); ++column) {
        const QJsonValue value = row.value(table.cellKey(column));
        if (!value.isObject()) {
            ++missing;
            continue;
        }
        writer.writeEmptyCells(missing);
        missing = 0;
        const QJsonObject cell = value.toObject();
        writer.writeCell(shownTextOf(cell.value(keys::label)), statusOf(cell), alignmentOf(cell));
    }
    writer.writeEmptyCells(missing);
}

/// The rows of a document's table, for a report item. Stored cells would hold every text of the document once more.
class DocumentRows : public TableRowSource
{
public:
    /// Whether a table is better read than stored. One of many columns is not: it is drawn in several bands, and would
    /// be read for each of them.
    static bool canRead(const TableReader& table);

    explicit DocumentRows(const TableReader& table);

    int count() const override { return m_places.size(); }

protected:
    void read(int index, QVector<ReportCell>& cells) const override;

private:
    TableReader m_table;
    bool m_hasLabels;
    QVector<int> m_places;
};

} // namespace uiutils
