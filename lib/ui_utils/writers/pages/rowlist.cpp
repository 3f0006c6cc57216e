#include "writers/pages/rowlist_p.h"

#include "writers/pages/reporttable.h"

namespace uiutils {

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

} // namespace uiutils
