#pragma once

#include "writers/pages/reportcell.h"

#include <QVector>

namespace uiutils {

/// Rows of a table that are held elsewhere, and read one by one whenever the table is measured or drawn.
class TableRowSource
{
public:
    virtual ~TableRowSource();
    Q_DISABLE_COPY_MOVE(TableRowSource)

    /// The number of rows, each of which has cells. It never changes.
    virtual int count() const = 0;
    /// The cells of a row, which stay until another row is requested.
    const QVector<ReportCell>& row(int index) const;

protected:
    TableRowSource() = default;

    /// Appends the cells of a row to `cells`.
    virtual void read(int index, QVector<ReportCell>& cells) const = 0;

private:
    // A table requests a row's cells one after the other.
    mutable QVector<ReportCell> m_cells;
    mutable int m_index = -1;
};

} // namespace uiutils
