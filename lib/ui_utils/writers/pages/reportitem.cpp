#include "writers/pages/reportitem.h"

#include <algorithm>

ReportItem::ReportItem() = default;

ReportItem::~ReportItem() = default;

void ReportItem::release() { }

namespace uiutils {

QList<ReportItem*>& sharedReportItems()
{
    // Never destroyed: when the program ends, it still contains the items of the last pass.
    static auto& items = *new QList<ReportItem*>;
    return items;
}

void deleteItemsOfPasses(QList<ReportItem*>& items)
{
    const auto others = std::stable_partition(
            items.begin(), items.end(), [](const ReportItem* item) { return !item->isOfPass(); });
    qDeleteAll(others, items.end());
    items.erase(others, items.end());
}

} // namespace uiutils
