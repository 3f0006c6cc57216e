#include "servicefile_p.h"

#include "jsonschema_p.h"

#include <kiv/plovjsondocument.h>

#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>

#include <cmath>

// Resources of a library are only there once somebody asked for them.
static void initSchemas()
{
    Q_INIT_RESOURCE(schemas);
}

namespace kiv::embedded {

namespace {

const QJsonObject& serviceFileSchema()
{
    static const QJsonObject schema = [] {
        initSchemas();
        QFile file(QStringLiteral(":/uiutils/schemas/service-file.schema.json"));
        return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
    }();
    return schema;
}

QVariant itemValue(const QString& type, const QJsonValue& value)
{
    if (value.isUndefined())
        return QVariant();
    if (type == QLatin1String("int"))
        return value.toInt();
    if (type == QLatin1String("uint"))
        return uint(value.toDouble());
    if (type == QLatin1String("stringARRAY"))
        return value.toVariant().toStringList();
    return value.toVariant();
}

ItemDescription itemDescription(const QJsonObject& object)
{
    ItemDescription item;
    item.id = object.value(QLatin1String("id")).toString();
    item.type = object.value(QLatin1String("type")).toString();
    item.label = object.value(QLatin1String("label")).toString();
    item.unit = object.value(QLatin1String("unit")).toString();
    item.value = itemValue(item.type, object.value(QLatin1String("value")));
    item.precision = object.value(QLatin1String("precision")).toInt(-1);
    item.attributes = object.value(QLatin1String("attributes")).toObject().toVariantMap();
    return item;
}

/// What the schema cannot say: an id stands once, the mark of an array in it agrees with the type, and a number of
/// 32 bits without sign, too large for the validator's integers, is whole.
QString itemProblem(const QJsonObject& object, const QSet<QString>& knownIds)
{
    const QString id = object.value(QLatin1String("id")).toString();
    if (knownIds.contains(id))
        return QCoreApplication::translate("ServiceFile", "the id %1 stands twice").arg(id);

    const QString type = object.value(QLatin1String("type")).toString();
    for (const QString& array : {QStringLiteral("stringARRAY"), QStringLiteral("doubleARRAY")}) {
        const bool isMarked = id.endsWith(QLatin1Char(':') + array + QLatin1Char(':'));
        if (isMarked != (type == array))
            return QCoreApplication::translate("ServiceFile", "the type %1 and the id %2 disagree on whether it is an array")
                    .arg(type, id);
    }
    const double number = object.value(QLatin1String("value")).toDouble();
    if (type == QLatin1String("uint") && number != std::floor(number))
        return QCoreApplication::translate("ServiceFile", "the value of %1 is no whole number").arg(id);
    return QString();
}

} // namespace

std::optional<ServiceDescription> readServiceFile(const QString& path, QString* problem)
{
    PlovJsonDocument document;
    if (!document.readFile(path)) {
        *problem = document.errorString();
        return std::nullopt;
    }
    const QJsonObject root = document.object();
    const QString violation = schemaViolation(serviceFileSchema(), root);
    if (!violation.isEmpty()) {
        *problem = path + QLatin1String(": ") + violation;
        return std::nullopt;
    }

    ServiceDescription service;
    service.service = root.value(QLatin1String("service")).toString();
    QSet<QString> ids;
    const QJsonArray items = root.value(QLatin1String("items")).toArray();
    for (int i = 0; i < items.size(); ++i) {
        const QJsonObject object = items.at(i).toObject();
        const QString reason = itemProblem(object, ids);
        if (!reason.isEmpty()) {
            *problem = QStringLiteral("%1: /items/%2: %3").arg(path, QString::number(i), reason);
            return std::nullopt;
        }
        service.items += itemDescription(object);
        ids += service.items.constLast().id;
    }
    return service;
}

} // namespace kiv::embedded
