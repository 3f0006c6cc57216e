#include "itemstate_p.h"

#include "descriptioncheck_p.h"
#include "formatters/formatters_p.h"
#include "itemtypes_p.h"
#include "shownvalue_p.h"
#include "valueconversion_p.h"

#include "base/servicetext_p.h"

#include <algorithm>

namespace kiv::embedded {

namespace {

QVariant converted(unsigned type, const QVector<MemberDescription>& members, const QVariant& value)
{
    return value.isValid() ? convertToType(type, members, value).value : QVariant();
}

} // namespace

ItemState::ItemState(const ItemDescription& itemDescription)
    : description(itemDescription)
    , type(typeCode(itemDescription.type))
{
    description.value = converted(type, description.members, description.value);
    const Limits limits = convertLimits(type, description.minimum, description.maximum);
    description.minimum = limits.minimum;
    description.maximum = limits.maximum;
}

QString ItemState::title() const
{
    return description.label.isEmpty() ? name() : label();
}

QString ItemState::label() const
{
    return uiutils::translatedServiceText(description.label, description.id);
}

QString ItemState::name() const
{
    const QStringList words = description.id.split(QLatin1Char(':'), Qt::SkipEmptyParts);
    return words.value(words.size() - (elementType(type) == type ? 1 : 2));
}

QString ItemState::typeName() const
{
    switch (type) {
    case KIVClientItem::TypeStringArray:
        return QStringLiteral("std::vector<string>");
    case KIVClientItem::TypeDoubleArray:
        return QStringLiteral("std::vector<double>");
    default:
        return description.type;
    }
}

QString ItemState::valueText(bool showUnits) const
{
    const QString choice = choiceText();
    if (choice.isEmpty() && formatter())
        return formattedText(showUnits);
    const QString text = choice.isEmpty() ? shownText(description.value, description.members, precision()) : choice;
    return showUnits ? withUnit(text, description) : text;
}

QString ItemState::unitText() const
{
    if (!description.unit.isEmpty() || !formatter())
        return unitLabel(description);
    formatter()->setValue(description.value);
    return formatter()->getUnitString();
}

QVariant ItemState::attribute(const QString& name) const
{
    const auto own = description.attributes.constFind(name);
    if (own != description.attributes.cend())
        return *own;
    if (name == QLatin1String("label"))
        return label();
    if (name == QLatin1String("type"))
        return typeName();
    if (name == QLatin1String("minRange"))
        return description.minimum;
    if (name == QLatin1String("maxRange"))
        return description.maximum;
    if (name == QLatin1String("precision") && description.precision >= 0)
        return description.precision;
    if (name == QLatin1String("enum") && isEnumeration())
        return this->name();
    return sourceText(name);
}

/// What a catalogue would translate, for recordings, which are played where another language is spoken.
QVariant ItemState::sourceText(const QString& name) const
{
    if (name == QLatin1String("sourceLabel"))
        return description.label;
    if (name == QLatin1String("sourceUnit"))
        return description.unit;
    if (name != QLatin1String("sourceChoices") || !isEnumeration())
        return QVariant();
    QStringList labels;
    for (const ChoiceDescription& choice : description.choices)
        labels += choice.label.isEmpty() ? choice.name : choice.label;
    return labels;
}

void ItemState::setAttribute(const QString& name, const QVariant& value)
{
    QVariantMap attributes = description.attributes;
    attributes.insert(name, value);
    setAttributes(attributes);
}

void ItemState::setAttributes(const QVariantMap& attributes)
{
    description.attributes = attributes;
    m_formatter.reset();
    m_hasLookedForFormatter = false;
}

ItemState::Changes ItemState::takeValue(const QVariant& value)
{
    if (isSame(value, description.value))
        return {};
    // A formatter that scales may show another unit for another value.
    const bool unitMayChange = description.unit.isEmpty() && formatter();
    const QString oldUnit = unitMayChange ? unitText() : QString();
    description.value = value;
    note(ItemField::Value);
    return {true, unitMayChange && unitText() != oldUnit};
}

BaseFormatter* ItemState::formatter() const
{
    if (m_hasLookedForFormatter)
        return m_formatter.get();
    m_hasLookedForFormatter = true;
    const QString name = description.attributes.value(QStringLiteral("formatter")).toString();
    if (!name.isEmpty() && !description.members.size())
        m_formatter.reset(formatters::create(name));
    if (m_formatter)
        m_formatter->setPrecision(precision());
    return m_formatter.get();
}

QString ItemState::choiceText() const
{
    const auto choice = std::find_if(
            description.choices.cbegin(), description.choices.cend(), [this](const ChoiceDescription& c) {
                return isSame(QVariant(c.value), description.value)
                        || isSame(QVariant(uint(c.value)), description.value);
            });
    if (choice == description.choices.cend())
        return QString();
    return choiceLabel(description, *choice);
}

QString ItemState::formattedText(bool showUnits) const
{
    formatter()->setShowUnits(showUnits && description.unit.isEmpty());
    QString text;
    if (elementType(type) == type) {
        text = formatter()->format(description.value);
    } else {
        QStringList texts;
        const QVariantList elements = description.value.toList();
        for (const QVariant& element : elements)
            texts += formatter()->format(element);
        text = texts.join(QLatin1String(", "));
    }
    return showUnits ? withUnit(text, description) : text;
}

int ItemState::precision() const
{
    bool isNumber = false;
    const int named = description.attributes.value(QStringLiteral("precision")).toInt(&isNumber);
    return isNumber ? qBound(-1, named, 15) : description.precision;
}

void emitChanges(const std::shared_ptr<ItemState>& state, ItemState::Changes changes)
{
    const std::shared_ptr<ItemState> held = state;
    if (changes.value && held->item)
        Q_EMIT held->item->valueChanged();
    if (changes.unit && held->item)
        Q_EMIT held->item->unitsChanged();
}

} // namespace kiv::embedded
