#include "recordeditem_p.h"

#include "itemwords_p.h"
#include "jsonline_p.h"

#include <kiv/baseformatter.h>
#include <kiv/kivaggregateclientitem.h>
#include <kiv/kivenumclientitem.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <memory>

namespace kiv::replay {

namespace {

const QString precisionAttribute = QStringLiteral("precision");

QString wordOf(const QVariant& member)
{
    switch (int(member.userType())) {
    case QMetaType::Bool:
        return QStringLiteral("bool");
    case QMetaType::Int:
        return QStringLiteral("int");
    case QMetaType::UInt:
        return QStringLiteral("uint");
    case QMetaType::Double:
        return QStringLiteral("double");
    case QMetaType::QString:
        return QStringLiteral("std::string");
    default:
        return QString();
    }
}

/// The types of the members as they were known before.
QVariantMap knownTypes(const QByteArray& members)
{
    QVariantMap types;
    const QJsonArray array = QJsonDocument::fromJson(members).array();
    for (const QJsonValue& member : array)
        types.insert(member[QLatin1String("name")].toString(), member[QLatin1String("type")].toString());
    return types;
}

template<class ValueOf>
QByteArray membersOf(const QList<QByteArray>& names, const QByteArray& before, const ValueOf& valueOf)
{
    QVariantMap known;
    QByteArray json("[");
    for (const QByteArray& name : names) {
        const QString text = QString::fromUtf8(name);
        QString type = wordOf(valueOf(name));
        if (type.isEmpty() && known.isEmpty())
            known = knownTypes(before);
        if (type.isEmpty())
            type = known.value(text, QStringLiteral("std::string")).toString();
        json += json.size() > 1 ? ",{\"name\":" : "{\"name\":";
        appendText(&json, text);
        appendField(&json, "type", type);
        json += '}';
    }
    return json + ']';
}

void appendUnless(QByteArray* line, const char* name, bool isUsual, const QVariant& value)
{
    if (!isUsual)
        appendField(line, name, value);
}

void appendJson(QByteArray* line, const char* name, const QByteArray& json)
{
    if (!json.isEmpty())
        line->append(",\"").append(name).append("\":").append(json);
}

/// A text before translation, where the platform tells it.
QString sourceText(const KIVClientItem& item, const QString& name, const QString& shown)
{
    const QVariant source = item.getAttribute(name);
    return source.isValid() ? source.toString() : shown;
}

} // namespace

QuietFacts quietFacts(const KIVClientItem& item, const QStringList& attributes)
{
    QuietFacts facts {sourceText(item, QStringLiteral("sourceLabel"), item.getLabel()), item.getMinRange(),
            item.getMaxRange(), {}};
    for (const QString& name : attributes) {
        const QVariant value = item.getAttribute(name);
        if (value.isValid())
            facts.attributes.insert(name, value);
    }
    return facts;
}

QString ownUnit(const KIVClientItem& item)
{
    const QVariant source = item.getAttribute(QStringLiteral("sourceUnit"));
    if (source.isValid())
        return source.toString();
    const QString unit = item.getUnitString();
    const QString name = unit.isEmpty() ? QString() : item.getAttribute(QStringLiteral("formatter")).toString();
    if (name.isEmpty())
        return unit;
    const std::unique_ptr<BaseFormatter> formatter(getFormatter(name));
    if (!formatter)
        return unit;
    formatter->setValue(item.getValue());
    return formatter->getUnitString() == unit ? QString() : unit;
}

QByteArray choicesJson(const KIVClientItem& item)
{
    const auto* const enumeration = qobject_cast<const KIVEnumClientItem*>(&item);
    if (!enumeration)
        return QByteArray();
    const KIVEnumChoicesClientItem* const choices = enumeration->getChoices();
    const QStringList sources = item.getAttribute(QStringLiteral("sourceChoices")).toStringList();
    QByteArray json("[");
    for (int i = 0; choices && i < choices->count(); ++i) {
        json += i > 0 ? ",{\"value\":" : "{\"value\":";
        json += QByteArray::number(choices->valueAt(i));
        appendField(&json, "name", choices->nameAt(i));
        const QString label = sources.value(i, choices->labelAt(i));
        appendUnless(&json, "label", label == choices->nameAt(i), label);
        appendUnless(&json, "applicable", choices->isApplicableAt(i), false);
        json += '}';
    }
    return json + ']';
}

QByteArray membersJson(const KIVClientItem& item, const QByteArray& before)
{
    if (const auto* const one = qobject_cast<const KivAggregateClientItem*>(&item)) {
        const KivAggregate aggregate = one->getAggregate();
        return membersOf(aggregate.getPropertyNames(), before,
                [&aggregate](const QByteArray& name) { return aggregate.getPropertyVariant(name); });
    }
    if (const auto* const several = qobject_cast<const KivListAggregateClientItem*>(&item)) {
        const KivListAggregate table = several->getListAggregate();
        return membersOf(table.getPropertyNames(), before,
                [&table](const QByteArray& name) { return table.getPropertyVariant(name, 0); });
    }
    return QByteArray();
}

void appendDescription(QByteArray* line, const KIVClientItem& item, const QuietFacts& quiet, const QByteArray& members)
{
    const QString type = typeWord(item.getType());
    appendField(line, "type", type.isEmpty() ? item.getTypeName() : type);
    appendUnless(line, "label", quiet.label.isEmpty(), quiet.label);
    const QString unit = ownUnit(item);
    appendUnless(line, "unit", unit.isEmpty(), unit);
    appendUnless(line, "minimum", !quiet.minimum.isValid(), quiet.minimum);
    appendUnless(line, "maximum", !quiet.maximum.isValid(), quiet.maximum);
    appendJson(line, "choices", choicesJson(item));
    appendJson(line, "members", members);
    QVariantMap attributes = quiet.attributes;
    const QVariant precision = attributes.take(precisionAttribute);
    appendUnless(line, "precision", !precision.isValid(), precision);
    appendUnless(line, "attributes", attributes.isEmpty(), attributes);
    appendUnless(
            line, "quality", item.getQualityCode() == KIVClientItem::QualityNone, qualityWord(item.getQualityCode()));
    appendUnless(line, "ready", item.isReady(), false);
    const QString expression = item.getApplicableExpr();
    if (!expression.isEmpty())
        appendField(line, "applicable", expression);
    else
        appendUnless(line, "applicable", item.isApplicable(), false);
    appendUnless(line, "value", !item.getValue().isValid(), item.getValue());
}

} // namespace kiv::replay
