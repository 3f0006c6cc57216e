#include "report/savedreportorder_p.h"

#include "core/usercollator_p.h"

namespace uiutils {

SavedReportOrder::SavedReportOrder(SavedReports::SortKey key, bool reversed)
    : m_key(key)
    , m_isReversed(reversed)
    , m_names(userCollator())
{
}

bool SavedReportOrder::operator()(const SavedReport& a, const SavedReport& b) const
{
    const SavedReport& first = m_isReversed ? b : a;
    const SavedReport& second = m_isReversed ? a : b;
    const int result = compare(first, second);
    return result == 0 ? comesBefore(first, second) : result < 0;
}

int SavedReportOrder::compare(const SavedReport& a, const SavedReport& b) const
{
    switch (m_key) {
    case SavedReports::ByName:
        return m_names.compare(a.name, b.name);
    case SavedReports::BySize:
        return a.size == b.size ? 0 : a.size > b.size ? -1 : 1;
    case SavedReports::ByFormat:
        return a.format.compare(b.format);
    case SavedReports::ByTime:
        break;
    }
    return 0;
}

} // namespace uiutils
