#include "names/itemfacts.h"

#include "service/kivaggregatedata.h"
#include "service/kivdata.h"
#include "service/kivlistaggregatedata.h"
#include "service/manifest.h"

#include <QHash>
#include <QJsonArray>
#include <QMetaProperty>

namespace uiutils::names {

namespace {

QString memberNameOf(const QString& id, const QString& name)
{
    if (id.startsWith(QLatin1String(":act")))
        return QLatin1String("act_") + name;
    if (id.startsWith(QLatin1String(":res")))
        return QLatin1String("res_") + name;
    if (id.startsWith(QLatin1String(":con")))
        return QLatin1String("cfg_") + name;
    return QString();
}

/// The last word that is no mark of an array.
QString nameOf(const QString& id)
{
    const QStringList words = id.split(QLatin1Char(':'), Qt::SkipEmptyParts);
    const QString last = words.value(words.size() - 1);
    const bool isMarked = last == QLatin1String("stringARRAY") || last == QLatin1String("doubleARRAY");
    return isMarked ? words.value(words.size() - 2) : last;
}

/// The type in a service file, as wrappers say it.
QString wrapperType(const QString& type)
{
    if (type == QLatin1String("stringARRAY"))
        return QStringLiteral("std::vector<string>");
    if (type == QLatin1String("doubleARRAY"))
        return QStringLiteral("std::vector<double>");
    return type;
}

ItemFacts::Kind kindOf(const KivData& wrapper)
{
    if (qobject_cast<const KivAggregateData*>(&wrapper))
        return ItemFacts::Aggregate;
    return qobject_cast<const KivListAggregateData*>(&wrapper) ? ItemFacts::Table : ItemFacts::Value;
}

ItemFacts::Kind kindOf(const QString& type)
{
    if (type == QLatin1String("aggregate"))
        return ItemFacts::Aggregate;
    return type == QLatin1String("listAggregate") ? ItemFacts::Table : ItemFacts::Value;
}

QVector<Choice> choicesOf(KivData& item)
{
    QVector<Choice> choices;
    const QObject* const names = item.getEnums();
    QHash<int, QString> byValue;
    const QMetaObject* const meta = names ? names->metaObject() : nullptr;
    for (int i = meta ? meta->propertyOffset() : 0; meta && i < meta->propertyCount(); ++i)
        byValue.insert(meta->property(i).read(names).toInt(), QString::fromUtf8(meta->property(i).name()));
    for (int i = 0; i < item.getEnumCount(); ++i) {
        const int value = item.enumValue(i);
        choices.append({value, byValue.value(value), item.enumLabel(i)});
    }
    return choices;
}

ItemFacts factsOf(const QString& id, KivData& wrapper)
{
    ItemFacts facts;
    if (const auto* manifest = qobject_cast<const Manifest*>(wrapper.parent())) {
        facts.service = manifest->getServiceName();
        facts.tag = manifest->getQmlTag();
    }
    facts.id = id;
    facts.isThere = !wrapper.getQmlTag().isEmpty();
    facts.name = facts.isThere ? wrapper.getName() : nameOf(id);
    facts.memberName = memberNameOf(id, facts.name);
    facts.kind = kindOf(wrapper);
    facts.type = wrapper.getType();
    facts.label = wrapper.getLabel();
    facts.unit = wrapper.getUnitString();
    facts.minimum = wrapper.getMinRange();
    facts.maximum = wrapper.getMaxRange();
    facts.choices = choicesOf(wrapper);
    facts.isEnumeration = !facts.choices.isEmpty();
    facts.inputType = wrapper.getInputType();
    return facts;
}

} // namespace

QVector<ItemFacts> factsOfManifests()
{
    QVector<ItemFacts> all;
    const QStringList ids = Manifest::getKivIds(QString(), QString());
    for (const QString& id : ids) {
        if (KivData* wrapper = Manifest::getKivData(id))
            all.append(factsOf(id, *wrapper));
    }
    return all;
}

QVector<ItemFacts> factsOfDocument(const QJsonObject& document)
{
    const QString service = document.value(QLatin1String("service")).toString();
    const QJsonArray items = document.value(QLatin1String("items")).toArray();
    QVector<ItemFacts> all;
    for (const QJsonValue& value : items) {
        const QJsonObject item = value.toObject();
        ItemFacts facts;
        facts.service = service;
        facts.tag = tagOf(service);
        facts.id = item.value(QLatin1String("id")).toString();
        facts.name = nameOf(facts.id);
        facts.memberName = memberNameOf(facts.id, facts.name);
        facts.kind = kindOf(item.value(QLatin1String("type")).toString());
        facts.type = wrapperType(item.value(QLatin1String("type")).toString());
        facts.label = item.value(QLatin1String("label")).toString();
        facts.unit = item.value(QLatin1String("unit")).toString();
        facts.minimum = item.value(QLatin1String("minimum")).toVariant();
        facts.maximum = item.value(QLatin1String("maximum")).toVariant();
        const QJsonArray choices = item.value(QLatin1String("choices")).toArray();
        for (const QJsonValue& choice : choices) {
            const QString name = choice.toObject().value(QLatin1String("name")).toString();
            const QString label = choice.toObject().value(QLatin1String("label")).toString();
            facts.choices.append(
                    {choice.toObject().value(QLatin1String("value")).toInt(), name, label.isEmpty() ? name : label});
        }
        facts.isEnumeration = item.contains(QLatin1String("choices"));
        facts.inputType = unsigned(
                item.value(QLatin1String("attributes")).toObject().value(QLatin1String("inputType")).toInt());
        if (!facts.id.isEmpty())
            all.append(facts);
    }
    return all;
}

} // namespace uiutils::names
