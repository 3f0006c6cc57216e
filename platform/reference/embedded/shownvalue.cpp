#include "shownvalue_p.h"

#include "itemtypes_p.h"
#include "texts_p.h"

#include "base/servicetext_p.h"

#include <QLocale>

#include <limits>

namespace kiv::embedded {

namespace {

constexpr int quotedLength = 40;
constexpr int listedChoices = 12;

QString aggregateText(const QVariantMap& aggregate, const QVector<MemberDescription>& members, int precision)
{
    QStringList texts;
    for (const MemberDescription& member : members)
        texts += shownText(aggregate.value(member.name), {}, precision);
    return texts.join(QLatin1String(", "));
}

QString listText(const QVariantList& list, const QVector<MemberDescription>& members, int precision)
{
    QStringList texts;
    texts.reserve(list.size());
    for (const QVariant& element : list)
        texts += shownText(element, members, precision);
    return texts.join(members.isEmpty() ? QLatin1String(", ") : QLatin1String("; "));
}

QString limitsText(const QVariant& minimum, const QVariant& maximum)
{
    if (!minimum.isValid() && !maximum.isValid())
        return QString();
    if (!maximum.isValid())
        return ValueTexts::tr("%1 or more").arg(shownText(minimum, {}, -1));
    if (!minimum.isValid())
        return ValueTexts::tr("%1 or less").arg(shownText(maximum, {}, -1));
    return ValueTexts::tr("%1 to %2").arg(shownText(minimum, {}, -1), shownText(maximum, {}, -1));
}

template<class Integer> QString integerLimits(const ItemDescription& item)
{
    const auto orOf
            = [](const QVariant& limit, Integer otherwise) { return limit.isValid() ? limit : QVariant(otherwise); };
    return limitsText(orOf(item.minimum, std::numeric_limits<Integer>::min()),
            orOf(item.maximum, std::numeric_limits<Integer>::max()));
}

QString choicesText(const ItemDescription& item)
{
    QStringList texts;
    for (const ChoiceDescription& choice : item.choices) {
        if (choice.isApplicable)
            texts += choiceLabel(item, choice);
    }
    if (texts.size() > listedChoices)
        texts = texts.mid(0, listedChoices) << QString(QChar(0x2026));
    return texts.join(QLatin1String(", "));
}

QString charactersText(const ItemDescription& item)
{
    const QString limits = limitsText(item.minimum, item.maximum);
    return limits.isEmpty() ? ValueTexts::tr("a text") : ValueTexts::tr("%1 characters").arg(limits);
}

QString doubleText(const ItemDescription& item)
{
    const QString limits = limitsText(item.minimum, item.maximum);
    return limits.isEmpty() ? ValueTexts::tr("any number") : limits;
}

QString membersText(const ItemDescription& item)
{
    QStringList names;
    for (const MemberDescription& member : item.members)
        names += member.name;
    return ValueTexts::tr("the members %1").arg(names.join(QLatin1String(", ")));
}

} // namespace

QString unitLabel(const ItemDescription& item)
{
    return uiutils::translatedServiceText(item.unit, item.id);
}

QString withUnit(const QString& text, const ItemDescription& item)
{
    return text.isEmpty() || item.unit.isEmpty() ? text : text + QLatin1Char(' ') + unitLabel(item);
}

QString choiceLabel(const ItemDescription& item, const ChoiceDescription& choice)
{
    return uiutils::translatedServiceText(choice.label.isEmpty() ? choice.name : choice.label, item.id);
}

QString shownText(const QVariant& value, const QVector<MemberDescription>& members, int precision)
{
    const QLocale locale;
    switch (value.userType()) {
    case QMetaType::Double:
        return precision < 0 ? locale.toString(value.toDouble(), 'g', QLocale::FloatingPointShortest)
                             : locale.toString(value.toDouble(), 'f', precision);
    case QMetaType::Int:
        return locale.toString(value.toInt());
    case QMetaType::UInt:
        return locale.toString(value.toUInt());
    case QMetaType::QStringList:
    case QMetaType::QVariantList:
        return listText(value.toList(), members, precision);
    case QMetaType::QVariantMap:
        return aggregateText(value.toMap(), members, precision);
    default:
        return value.toString();
    }
}

QString quotedText(const QVariant& value)
{
    if (!value.isValid() || value.userType() == QMetaType::Nullptr)
        return ValueTexts::tr("nothing");
    QString text = value.toString();
    if (text.isEmpty() && value.canConvert(QMetaType::QVariantList))
        return ValueTexts::tr("a list");
    if (text.isEmpty() && value.canConvert(QMetaType::QVariantMap))
        return ValueTexts::tr("an aggregate");
    if (text.size() > quotedLength)
        text = text.left(quotedLength) + QChar(0x2026);
    return value.userType() == QMetaType::QString ? QLatin1Char('"') + text + QLatin1Char('"') : text;
}

QString allowedText(const ItemDescription& item, unsigned type)
{
    if (!item.choices.isEmpty())
        return choicesText(item);
    switch (elementType(type)) {
    case KIVClientItem::TypeString:
        return charactersText(item);
    case KIVClientItem::TypeBool:
        return ValueTexts::tr("true or false");
    case KIVClientItem::TypeInt:
        return withUnit(integerLimits<int>(item), item);
    case KIVClientItem::TypeUInt:
        return withUnit(integerLimits<uint>(item), item);
    case KIVClientItem::TypeDouble:
        return withUnit(doubleText(item), item);
    default:
        return membersText(item);
    }
}

} // namespace kiv::embedded
