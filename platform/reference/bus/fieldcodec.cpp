#include "fieldcodec_p.h"

#include "descriptioncodec_p.h"
#include "protocol_p.h"
#include "valuecodec_p.h"

namespace kiv::bus {

namespace {

using embedded::ItemDescription;
using embedded::ItemField;
using embedded::ItemState;

/// What a service says of a field, as a value; choices have a form of their own.
QVariant fieldValue(const ItemState& state, ItemField field)
{
    switch (field) {
    case ItemField::Value:
        return state.description.value;
    case ItemField::Label:
        return state.description.label;
    case ItemField::Unit:
        return state.description.unit;
    case ItemField::Ready:
        return state.description.isReady;
    case ItemField::Quality:
        return int(state.description.quality);
    case ItemField::Applicable:
        return state.description.isApplicable;
    case ItemField::Minimum:
        return state.description.minimum;
    case ItemField::Maximum:
        return state.description.maximum;
    case ItemField::Attributes:
        return state.description.attributes;
    case ItemField::Choices:
        break;
    }
    return QVariant();
}

int writeChoicesField(Writer& writer, const QVector<embedded::ChoiceDescription>& choices)
{
    ItemDescription item;
    item.choices = choices;
    const ItemDescription fitting = travelling(item);
    writer.byte(quint8(ItemField::Choices));
    writer.open('v', "a(issb)");
    writeChoices(writer, fitting.choices);
    writer.close();
    return changeSize(QVariant(), fitting.choices);
}

} // namespace

QString withoutNul(QString text)
{
    return text.remove(QChar(0));
}

ItemDescription travelling(ItemDescription item)
{
    item.label = withoutNul(item.label);
    item.unit = withoutNul(item.unit);
    item.applicableExpr = withoutNul(item.applicableExpr);
    for (embedded::ChoiceDescription& choice : item.choices) {
        choice.name = withoutNul(choice.name);
        choice.label = withoutNul(choice.label);
    }
    if (!canTravel(item.value))
        item.value = QVariant();
    if (!canTravel(item.attributes))
        item.attributes.clear();
    if (canTravel(item))
        return item;
    // Each part may fit, and not all of them. The item is there, and says nothing of itself.
    ItemDescription bare;
    bare.id = item.id;
    bare.type = item.type;
    bare.members = item.members;
    bare.isEnumeration = item.isEnumeration || !item.choices.isEmpty();
    return bare;
}

int writeField(Writer& writer, ItemField field, const QVariant& value)
{
    const bool hasValue = value.isValid() && canTravel(value);
    writer.byte(quint8(field) + (hasValue ? 0 : withoutValue));
    if (hasValue)
        writeValue(writer, value);
    else
        writeNoValue(writer);
    return changeSize(hasValue ? value : QVariant(), {});
}

int writeField(Writer& writer, ItemField field, const ItemState& state)
{
    return field == ItemField::Choices ? writeChoicesField(writer, state.description.choices)
                                       : writeField(writer, field, fieldValue(state, field));
}

void writeTexts(Writer& writer, const QMap<QString, QString>& texts)
{
    int size = 0;
    writer.open('a', "{ss}");
    for (auto it = texts.cbegin(); it != texts.cend(); ++it) {
        const QString name = withoutNul(it.key());
        const QString text = withoutNul(it.value());
        size += sizeOf(name) + sizeOf(text);
        if (size > largestPage)
            break;
        writer.open('e', "ss");
        writer.text(name);
        writer.text(text);
        writer.close();
    }
    writer.close();
}

QMap<QString, QString> readTexts(Reader& reader)
{
    QMap<QString, QString> texts;
    if (!reader.enter('a', "{ss}"))
        return texts;
    while (!reader.atEnd() && reader.enter('e', "ss")) {
        const QString name = reader.text();
        texts.insert(name, reader.text());
        reader.leave();
    }
    reader.leave();
    return texts;
}

} // namespace kiv::bus
