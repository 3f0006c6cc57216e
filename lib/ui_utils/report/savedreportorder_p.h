#pragma once

#include "report/reportlisting_p.h"
#include "report/savedreports.h"

#include <QCollator>

namespace uiutils {

/// The order of rows. The same reports always have the same order.
class SavedReportOrder
{
public:
    explicit SavedReportOrder(SavedReports::SortKey key = SavedReports::ByTime, bool reversed = false);

    /// Whether `a` comes before `b`.
    bool operator()(const SavedReport& a, const SavedReport& b) const;

private:
    /// Negative if `a` comes before `b` by the key alone, 0 if both are equal.
    int compare(const SavedReport& a, const SavedReport& b) const;

    SavedReports::SortKey m_key;
    bool m_isReversed;
    QCollator m_names;
};

} // namespace uiutils
