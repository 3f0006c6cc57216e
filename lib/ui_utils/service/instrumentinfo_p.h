#pragma once

#include "document/reportmetadata.h"
#include "instrument/job_p.h"

namespace uiutils::instrument {

inline void addWorkOrder(ReportMetadata* metadata)
{
    const QMap<QString, QString> order = workOrder();
    for (auto it = order.cbegin(); it != order.cend(); ++it)
        metadata->setInfo(it.key(), it.value());
}

} // namespace uiutils::instrument
