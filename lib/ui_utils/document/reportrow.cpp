#include "document/reportrow_p.h"

#include "document/reportkeys_p.h"

namespace uiutils {

QString attributeKey(const QString& name)
{
    return keys::attributeFamily + name;
}

QJsonObject reportRow(
        const QString& tag, const QString& rowLabel, const QVariant& val, const QMap<QString, QVariant>& attrs)
{
    QJsonObject cell;
    for (auto it = attrs.cbegin(); it != attrs.cend(); ++it)
        cell.insert(attributeKey(it.key()), it.value().toString());
    cell.insert(keys::label, val.toString());
    cell.insert(keys::tag, tag);
    cell.insert(keys::title, rowLabel);
    return {{keys::cellFamily + QLatin1Char('0'), cell}, {keys::label, rowLabel}};
}

} // namespace uiutils
