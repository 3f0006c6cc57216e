#include "writers/reportitem.h"

ReportItem::ReportItem() = default;

ReportItem::~ReportItem() = default;

void ReportItem::release() { }

namespace uiutils {

QList<ReportItem*>& sharedReportItems()
{
    static QList<ReportItem*> items;
    return items;
}

} // namespace uiutils
