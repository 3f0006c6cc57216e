#pragma once

#include "report/reportlisting_p.h"
#include "report/savedreports.h"

#include <QCollator>
#include <QStringList>

namespace uiutils {

/// Whether the report has each of the words in its name or format.
bool hasWords(const SavedReport& report, const QStringList& words);

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
