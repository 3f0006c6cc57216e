#include "document/tablerows.h"

#include "document/reportrow_p.h"

namespace uiutils {

class TableRowsPrivate
{
public:
    QVector<QJsonObject> rows;
};

TableRows::TableRows(QObject* parent)
    : QObject(parent)
    , d(std::make_unique<TableRowsPrivate>())
{
}

TableRows::~TableRows() = default;

int TableRows::count() const
{
    return d->rows.size();
}

void TableRows::addRow(
        const QString& tag, const QString& rowLabel, const QVariant& val, const QMap<QString, QVariant>& attrs)
{
    d->rows += reportRow(tag, rowLabel, val, attrs);
    Q_EMIT countChanged();
}

void TableRows::clear()
{
    if (!take().isEmpty())
        Q_EMIT countChanged();
}

QVector<QJsonObject> TableRows::take()
{
    QVector<QJsonObject> rows;
    rows.swap(d->rows);
    return rows;
}

} // namespace uiutils
