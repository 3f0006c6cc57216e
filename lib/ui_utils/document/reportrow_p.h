#pragma once

#include <QJsonObject>
#include <QMap>
#include <QString>
#include <QVariant>

namespace uiutils {

/// The key under which a node or a cell has an attribute.
QString attributeKey(const QString& name);

/// A row of a table with its label and one cell.
QJsonObject reportRow(
        const QString& tag, const QString& rowLabel, const QVariant& val, const QMap<QString, QVariant>& attrs);

} // namespace uiutils
