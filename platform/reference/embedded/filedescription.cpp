#include "filedescription_p.h"

#include "itemtypes_p.h"
#include "texts_p.h"

#include <QJsonArray>

namespace kiv::embedded {

namespace {

QString textOf(const QJsonObject& object, const char* key)
{
    return object.value(QLatin1String(key)).toString();
}

QVector<ChoiceDescription> choicesOf(const QJsonArray& array)
{
    QVector<ChoiceDescription> choices;
    for (const QJsonValue& value : array) {
        const QJsonObject object = value.toObject();
        choices.append({object.value(QLatin1String("value")).toInt(), textOf(object, "name"), textOf(object, "label"),
                object.value(QLatin1String("applicable")).toBool(true)});
    }
    return choices;
}

QVector<MemberDescription> membersOf(const QJsonArray& array)
{
    QVector<MemberDescription> members;
    for (const QJsonValue& value : array)
        members.append({textOf(value.toObject(), "name"), textOf(value.toObject(), "type")});
    return members;
}

std::optional<ActionDescription> actionOf(const QJsonValue& value)
{
    if (!value.isObject())
        return std::nullopt;
    const QJsonObject object = value.toObject();
    // What fails now and then does so only where the service is simulated.
    const bool isFailing = !object.contains(QLatin1String("fails"));
    return ActionDescription {object.value(QLatin1String("set")).toObject().toVariantMap(), textOf(object, "reply"),
            isFailing ? textOf(object, "fail") : QString(), object.value(QLatin1String("delay")).toInt()};
}

bool isOfKind(const QString& type, const QJsonValue& value)
{
    if (type == QLatin1String("std::string"))
        return value.isString();
    if (type == QLatin1String("bool"))
        return value.isBool();
    return value.isDouble();
}

/// The schema only requires an object for an aggregate, because the members are described elsewhere in the item.
/// Conversion alone would accept a text as a number.
QString aggregateProblem(const QString& place, const QVector<MemberDescription>& members, const QJsonObject& aggregate)
{
    for (const MemberDescription& member : members) {
        const QJsonValue value = aggregate.value(member.name);
        if (!value.isUndefined() && !isOfKind(member.type, value))
            return place + QLatin1Char('/') + member.name + QLatin1String(": ")
                    + ServiceFileTexts::tr("not of the type %1").arg(member.type);
    }
    return QString();
}

} // namespace

ItemDescription describedItem(const QJsonObject& object)
{
    ItemDescription item;
    item.id = textOf(object, "id");
    item.type = textOf(object, "type");
    item.label = textOf(object, "label");
    item.unit = textOf(object, "unit");
    item.value = object.value(QLatin1String("value")).toVariant();
    item.precision = object.value(QLatin1String("precision")).toInt(-1);
    item.attributes = object.value(QLatin1String("attributes")).toObject().toVariantMap();
    item.minimum = object.value(QLatin1String("minimum")).toVariant();
    item.maximum = object.value(QLatin1String("maximum")).toVariant();
    item.choices = choicesOf(object.value(QLatin1String("choices")).toArray());
    item.isEnumeration = object.contains(QLatin1String("choices"));
    item.members = membersOf(object.value(QLatin1String("members")).toArray());
    item.quality = qualityNamed(textOf(object, "quality"));
    item.isReady = object.value(QLatin1String("ready")).toBool(true);
    item.isApplicable = object.value(QLatin1String("applicable")).toBool(true);
    item.applicableExpr = textOf(object, "applicable");
    item.refusal = textOf(object, "refuse");
    item.isClearable = object.value(QLatin1String("clearable")).toBool();
    item.does = actionOf(object.value(QLatin1String("does")));
    return item;
}

QString aggregatesProblem(const ItemDescription& item, const QJsonValue& value)
{
    if (value.isObject())
        return aggregateProblem(QStringLiteral("/value"), item.members, value.toObject());
    const QJsonArray rows = item.members.isEmpty() ? QJsonArray() : value.toArray();
    for (int i = 0; i < rows.size(); ++i) {
        const QString problem
                = aggregateProblem(QStringLiteral("/value/%1").arg(i), item.members, rows.at(i).toObject());
        if (!problem.isEmpty())
            return problem;
    }
    return QString();
}

ServiceDescription describedService(const QJsonObject& file)
{
    ServiceDescription service;
    service.service = textOf(file, "service");
    service.delayMs = file.value(QLatin1String("delay")).toInt();
    service.mounted = file.value(QLatin1String("mounted")).toVariant().toStringList();
    const QJsonArray items = file.value(QLatin1String("items")).toArray();
    service.items.reserve(items.size());
    for (const QJsonValue& item : items)
        service.items += describedItem(item.toObject());
    return service;
}

} // namespace kiv::embedded
