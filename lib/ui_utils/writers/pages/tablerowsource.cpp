#include "writers/pages/tablerowsource_p.h"

namespace uiutils {

TableRowSource::~TableRowSource() = default;

const QVector<ReportCell>& TableRowSource::row(int index) const
{
    if (index != m_index) {
        m_cells.clear();
        read(index, m_cells);
        m_index = index;
    }
    return m_cells;
}

} // namespace uiutils
