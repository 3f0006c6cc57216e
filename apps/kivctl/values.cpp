#include "values.h"

#include "texts.h"

#include <kiv/kivenumclientitem.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QLocale>

namespace uiutils::kivctl {

namespace {

bool holdsSeveral(unsigned type)
{
    return type == KIVClientItem::TypeStringArray || type == KIVClientItem::TypeDoubleArray
            || type == KIVClientItem::TypeAggregate || type == KIVClientItem::TypeListAggregate;
}

QString qualityText(int code)
{
    switch (code) {
    case KIVClientItem::QualityPassing:
        return QStringLiteral("passing");
    case KIVClientItem::QualityWarning:
        return QStringLiteral("warning");
    case KIVClientItem::QualityFailing:
        return QStringLiteral("failing");
    default:
        return QString();
    }
}

const KIVEnumChoicesClientItem* choicesOf(const KIVClientItem& item)
{
    const auto* const enumeration = qobject_cast<const KIVEnumClientItem*>(&item);
    return enumeration ? enumeration->getChoices() : nullptr;
}

QJsonArray choicesJson(const KIVEnumChoicesClientItem& choices)
{
    QJsonArray array;
    for (int i = 0; i < choices.count(); ++i) {
        array += QJsonObject {{QStringLiteral("value"), choices.valueAt(i)},
                {QStringLiteral("name"), choices.nameAt(i)}, {QStringLiteral("label"), choices.labelAt(i)},
                {QStringLiteral("applicable"), choices.isApplicableAt(i)}};
    }
    return array;
}

void insertUnlessEmpty(QJsonObject* object, QLatin1String name, const QVariant& value)
{
    if (value.isValid() && !(value.userType() == QMetaType::QString && value.toString().isEmpty()))
        object->insert(name, QJsonValue::fromVariant(value));
}

} // namespace

QString valueText(const QVariant& value)
{
    switch (value.userType()) {
    case QMetaType::Double:
        return QString::number(value.toDouble(), 'g', QLocale::FloatingPointShortest);
    case QMetaType::QStringList:
    case QMetaType::QVariantList:
    case QMetaType::QVariantMap:
        return QString::fromUtf8(QJsonDocument::fromVariant(value).toJson(QJsonDocument::Compact));
    default:
        return value.toString();
    }
}

QJsonObject itemJson(const QString& service, const KIVClientItem& item)
{
    QJsonObject object {{QStringLiteral("service"), service}, {QStringLiteral("id"), item.getId()},
            {QStringLiteral("type"), item.getTypeName()},
            {QStringLiteral("value"), QJsonValue::fromVariant(item.getValue())},
            {QStringLiteral("ready"), item.isReady()}};
    insertUnlessEmpty(&object, QLatin1String("text"), item.getValueString());
    insertUnlessEmpty(&object, QLatin1String("unit"), item.getUnitString());
    insertUnlessEmpty(&object, QLatin1String("label"), item.getLabel());
    insertUnlessEmpty(&object, QLatin1String("quality"), qualityText(item.getQualityCode()));
    insertUnlessEmpty(&object, QLatin1String("minimum"), item.getMinRange());
    insertUnlessEmpty(&object, QLatin1String("maximum"), item.getMaxRange());
    if (const KIVEnumChoicesClientItem* const choices = choicesOf(item))
        object.insert(QLatin1String("choices"), choicesJson(*choices));
    return object;
}

QVariant settingValue(const KIVClientItem& item, const QString& text, QString* problem)
{
    if (holdsSeveral(item.getType())) {
        QJsonParseError error {};
        const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8(), &error);
        if (document.isNull())
            *problem = Texts::tr("%1 takes JSON, such as [1, 2]: %2.").arg(item.getId(), error.errorString());
        return document.toVariant();
    }
    const KIVEnumChoicesClientItem* const choices = choicesOf(item);
    for (int i = 0; choices && i < choices->count(); ++i) {
        if (choices->nameAt(i) == text)
            return choices->valueAt(i);
    }
    return text;
}

QString stateText(const KIVClientItem& item)
{
    return item.isReady() ? qualityText(item.getQualityCode()) : QStringLiteral("not ready");
}

} // namespace uiutils::kivctl
