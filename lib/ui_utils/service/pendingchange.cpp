#include "service/pendingchange_p.h"

#include "core/itemids_p.h"
#include "core/plainvalue_p.h"
#include "service/kivdata_p.h"
#include "service/manifest.h"
#include "service/manifeststate_p.h"
#include "service/valuetext_p.h"

#include <kiv/kivaggregateclientitem.h>

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>
#include <tuple>

namespace uiutils {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(uiutils::PendingChanges)
};

bool isNumber(const QVariant& value)
{
    switch (value.userType()) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Float:
    case QMetaType::Double:
        return true;
    default:
        return false;
    }
}

bool isReal(const QVariant& value)
{
    return value.userType() == QMetaType::Double || value.userType() == QMetaType::Float;
}

bool isList(const QVariant& value)
{
    return value.userType() == QMetaType::QVariantList || value.userType() == QMetaType::QStringList;
}

/// Numbers as the type that the service uses: pages set 3 where the service means 3.000.
QVariant asTypeOf(const QVariant& value, const QVariant& served)
{
    if (isList(value) && isList(served)) {
        const QVariant servedElement = served.toList().value(0);
        QVariantList elements = value.toList();
        for (QVariant& element : elements)
            element = asTypeOf(element, servedElement);
        return elements;
    }
    QVariant converted = value;
    return isNumber(value) && isNumber(served) && converted.convert(served.userType()) && meansSame(converted, value)
            ? converted
            : value;
}

QString plainText(const QVariant& value, int precision)
{
    const QLocale locale;
    if (value.userType() == QMetaType::Double) {
        return precision < 0 ? locale.toString(value.toDouble(), 'g', QLocale::FloatingPointShortest)
                             : locale.toString(value.toDouble(), 'f', precision);
    }
    if (value.userType() == QMetaType::Bool)
        return value.toBool() ? Texts::tr("On") : Texts::tr("Off");
    if (isNumber(value))
        return locale.toString(value.toLongLong());
    if (!isList(value) && value.userType() != QMetaType::QVariantMap)
        return value.toString();
    QStringList texts;
    const QVariantList elements = isList(value) ? value.toList() : QVariantList(value.toMap().values());
    for (const QVariant& element : elements)
        texts += plainText(element, precision);
    return texts.join(QLatin1String(", "));
}

QString withUnit(const QString& text, const QString& unit)
{
    return text.isEmpty() || unit.isEmpty() ? text : text + QLatin1Char(' ') + unit;
}

/// The members of an aggregate in the order in which its service has them.
QVariant inOrder(const KIVClientItem* source, const QVariant& value)
{
    const auto* aggregate = qobject_cast<const KivAggregateClientItem*>(source);
    if (!aggregate || value.userType() != QMetaType::QVariantMap)
        return value;
    const QVariantMap map = value.toMap();
    QVariantList members;
    const QList<QByteArray> names = aggregate->getAggregate().getPropertyNames();
    for (const QByteArray& name : names)
        members.append(map.value(QString::fromUtf8(name)));
    return members;
}

/// A formatter knows single values.
QString formattedElements(BaseFormatter& formatter, const QVariant& value, bool showUnits)
{
    if (!isList(value))
        return formattedText(formatter, value, showUnits);
    QStringList texts;
    const QVariantList elements = value.toList();
    for (const QVariant& element : elements)
        texts += formattedText(formatter, element, showUnits);
    return texts.join(QLatin1String(", "));
}

/// A formatter that scales has another unit for another value, so its own units are shown, unless the service names one.
QString textOfFormatter(BaseFormatter& formatter, const KivData& item, const QVariant& value)
{
    const QVariant held = formatter.getValue();
    formatter.setValue(KivDataPrivate::of(&item)->reportedValue());
    const QString unit = item.getUnitString();
    const bool hasOwnUnit = unit == formatter.getUnitString();
    formatter.setValue(held);
    const QString text = formattedElements(formatter, value, hasOwnUnit);
    return hasOwnUnit ? text : withUnit(text, unit);
}

} // namespace

bool meansSame(const QVariant& a, const QVariant& b)
{
    if (isSameValue(a, b))
        return true;
    if (isNumber(a) && isNumber(b)) {
        // A double does not have all digits of a large whole number.
        const bool areEqual = a.toDouble() == b.toDouble();
        return isReal(a) || isReal(b) ? areEqual : areEqual && a.toLongLong() == b.toLongLong();
    }
    if (isList(a) && isList(b)) {
        const QVariantList as = a.toList();
        const QVariantList bs = b.toList();
        return std::equal(as.cbegin(), as.cend(), bs.cbegin(), bs.cend(), meansSame);
    }
    if (a.userType() != QMetaType::QVariantMap || b.userType() != QMetaType::QVariantMap)
        return false;
    const QVariantMap as = a.toMap();
    const QVariantMap bs = b.toMap();
    return as.keys() == bs.keys() && meansSame(as.values(), bs.values());
}

QString settingText(KivData& item, const QVariant& value)
{
    const QString choice = item.getEnumCount() > 0 ? item.enumLabelForValue(value.toInt()) : QString();
    if (!choice.isEmpty())
        return withUnit(choice, item.getUnitString());
    if (BaseFormatter* formatter = item.getBaseFormatter())
        return textOfFormatter(*formatter, item, value);
    const QVariant precision = item.getAttr(QStringLiteral("precision"));
    const QVariant shown = inOrder(KivDataPrivate::of(&item)->item, value);
    return withUnit(plainText(shown, precision.isNull() ? -1 : precision.toInt()), item.getUnitString());
}

bool renew(PendingChange& change)
{
    if (!change.item)
        return false;
    const auto known = [&change] { return std::tie(change.oldText, change.newText, change.label, change.service); };
    const std::tuple<QString, QString, QString, QString> before = known();
    const QVariant oldBefore = change.oldValue;
    KivData& item = *change.item;
    const KivDataPrivate* parts = KivDataPrivate::of(&item);
    change.oldValue = parts->reportedValue();
    if (const Manifest* manifest = toManifest(item.parent()))
        change.service = manifest->getServiceName();
    if (parts->item) {
        change.label = item.getLabel().isEmpty() ? item.getName() : item.getLabel();
        change.oldText = settingText(item, change.oldValue);
        change.newText = settingText(item, asTypeOf(change.newValue, change.oldValue));
    } else if (change.label.isEmpty()) {
        // It was made while the service was away.
        change.label = itemids::nameOf(change.id);
        change.oldText = plainText(change.oldValue, -1);
        change.newText = plainText(change.newValue, -1);
    }
    return known() != before || !isSameValue(change.oldValue, oldBefore);
}

} // namespace uiutils
