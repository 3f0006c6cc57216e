#include "descriptioncodec_p.h"

#include "itemchanges_p.h"
#include "protocol_p.h"
#include "valuecodec_p.h"

namespace kiv::bus {

namespace {

using embedded::ChoiceDescription;
using embedded::ItemDescription;
using embedded::MemberDescription;

/// One entry of the map of an item.
class Entry
{
public:
    Entry(Writer& writer, const char* name, const char* contents)
        : m_writer(writer)
    {
        m_writer.open('e', "sv");
        m_writer.text(QString::fromLatin1(name));
        m_writer.open('v', contents);
    }
    ~Entry()
    {
        m_writer.close();
        m_writer.close();
    }
    Q_DISABLE_COPY_MOVE(Entry)

private:
    Writer& m_writer;
};

void writeText(Writer& writer, const char* name, const QString& text)
{
    if (text.isEmpty())
        return;
    const Entry entry(writer, name, "s");
    writer.text(text);
}

void writeFlag(Writer& writer, const char* name, bool flag)
{
    const Entry entry(writer, name, "b");
    writer.boolean(flag);
}

void writeNumber(Writer& writer, const char* name, int number)
{
    const Entry entry(writer, name, "i");
    writer.int32(number);
}

void writeVariant(Writer& writer, const char* name, const QVariant& value)
{
    if (!value.isValid())
        return;
    writer.open('e', "sv");
    writer.text(QString::fromLatin1(name));
    writeValue(writer, value);
    writer.close();
}

void writeMembers(Writer& writer, const QVector<MemberDescription>& members)
{
    const Entry entry(writer, "members", "a(ss)");
    writer.open('a', "(ss)");
    for (const MemberDescription& member : members) {
        writer.open('r', "ss");
        writer.text(member.name);
        writer.text(member.type);
        writer.close();
    }
    writer.close();
}

QVector<MemberDescription> readMembers(Reader& reader)
{
    QVector<MemberDescription> members;
    if (!reader.enter('a', "(ss)"))
        return members;
    while (!reader.atEnd() && reader.enter('r', "ss")) {
        const QString name = reader.text();
        members.append({name, reader.text()});
        reader.leave();
    }
    reader.leave();
    return members;
}

/// Enters the variant that comes next when it holds `contents`, and passes over it otherwise.
bool enterVariant(Reader& reader, const char* contents)
{
    if (reader.enterIfNext('v', contents))
        return true;
    reader.skip("v");
    return false;
}

void readEntry(Reader& reader, const QString& name, ItemDescription* item)
{
    if (name == QLatin1String("choices") || name == QLatin1String("members")) {
        const bool areChoices = name == QLatin1String("choices");
        if (!enterVariant(reader, areChoices ? "a(issb)" : "a(ss)"))
            return;
        if (areChoices)
            item->choices = readChoices(reader);
        else
            item->members = readMembers(reader);
        reader.leave();
        return;
    }
    const QVariant value = readValue(reader);
    if (name == QLatin1String("type"))
        item->type = value.toString();
    else if (name == QLatin1String("value"))
        item->value = value;
    else if (name == QLatin1String("label"))
        item->label = value.toString();
    else if (name == QLatin1String("unit"))
        item->unit = value.toString();
    else if (name == QLatin1String("precision"))
        item->precision = value.toInt();
    else if (name == QLatin1String("minimum"))
        item->minimum = value;
    else if (name == QLatin1String("maximum"))
        item->maximum = value;
    else if (name == QLatin1String("quality"))
        item->quality = qualityOf(value);
    else if (name == QLatin1String("ready"))
        item->isReady = value.toBool();
    else if (name == QLatin1String("applicable"))
        item->isApplicable = value.toBool();
    else if (name == QLatin1String("applicableExpression"))
        item->applicableExpr = value.toString();
    else if (name == QLatin1String("enumeration"))
        item->isEnumeration = value.toBool();
    else if (name == QLatin1String("attributes"))
        item->attributes = value.toMap();
}

} // namespace

int descriptionSize(const ItemDescription& item)
{
    qint64 size = 300 + qint64(sizeOf(item.value)) + sizeOf(item.attributes) + sizeOf(item.choices);
    for (const QString* text : {&item.id, &item.label, &item.unit, &item.applicableExpr})
        size += 3 * qint64(text->size());
    for (const MemberDescription& member : item.members)
        size += 24 + 3 * qint64(member.name.size());
    return int(std::min<qint64>(size, largestSize));
}

bool canTravel(const ItemDescription& item)
{
    return descriptionSize(item) < largestValue;
}

void writeChoices(Writer& writer, const QVector<ChoiceDescription>& choices)
{
    writer.open('a', "(issb)");
    for (const ChoiceDescription& choice : choices) {
        writer.open('r', "issb");
        writer.int32(choice.value);
        writer.text(choice.name);
        writer.text(choice.label);
        writer.boolean(choice.isApplicable);
        writer.close();
    }
    writer.close();
}

QVector<ChoiceDescription> readChoices(Reader& reader)
{
    QVector<ChoiceDescription> choices;
    if (!reader.enter('a', "(issb)"))
        return choices;
    while (!reader.atEnd() && reader.enter('r', "issb")) {
        ChoiceDescription choice;
        choice.value = reader.int32();
        choice.name = reader.text();
        choice.label = reader.text();
        choice.isApplicable = reader.boolean();
        choices.append(choice);
        reader.leave();
    }
    reader.leave();
    return choices;
}

void writeDescription(Writer& writer, const ItemDescription& item)
{
    writer.open('a', "{sv}");
    writeText(writer, "type", item.type);
    writeVariant(writer, "value", item.value);
    writeText(writer, "label", item.label);
    writeText(writer, "unit", item.unit);
    if (item.precision >= 0)
        writeNumber(writer, "precision", item.precision);
    writeVariant(writer, "minimum", item.minimum);
    writeVariant(writer, "maximum", item.maximum);
    if (item.quality != KIVClientItem::QualityNone)
        writeNumber(writer, "quality", item.quality);
    if (!item.isReady)
        writeFlag(writer, "ready", false);
    if (!item.isApplicable)
        writeFlag(writer, "applicable", false);
    writeText(writer, "applicableExpression", item.applicableExpr);
    if (item.isEnumeration || !item.choices.isEmpty())
        writeFlag(writer, "enumeration", true);
    if (!item.choices.isEmpty()) {
        const Entry entry(writer, "choices", "a(issb)");
        writeChoices(writer, item.choices);
    }
    if (!item.members.isEmpty())
        writeMembers(writer, item.members);
    if (!item.attributes.isEmpty())
        writeVariant(writer, "attributes", item.attributes);
    writer.close();
}

void readDescription(Reader& reader, ItemDescription* item)
{
    if (!reader.enter('a', "{sv}"))
        return;
    while (!reader.atEnd() && reader.enter('e', "sv")) {
        const QString name = reader.text();
        readEntry(reader, name, item);
        reader.leave();
    }
    reader.leave();
}

} // namespace kiv::bus
