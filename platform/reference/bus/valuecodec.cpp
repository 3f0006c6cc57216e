#include "valuecodec_p.h"

#include "itemchanges_p.h"
#include "protocol_p.h"

#include <algorithm>

namespace kiv::bus {

namespace {

using embedded::ChoiceDescription;
using embedded::ItemDescription;
using embedded::MemberDescription;

constexpr int deepest = 16;

bool holdsOnly(const QVariantList& list, int type)
{
    return std::all_of(list.cbegin(), list.cend(), [type](const QVariant& v) { return v.userType() == type; });
}

void writeMap(Writer& writer, const QVariantMap& map)
{
    writer.open('a', "{sv}");
    for (auto it = map.cbegin(); it != map.cend(); ++it) {
        writer.open('e', "sv");
        writer.text(it.key());
        writeValue(writer, *it);
        writer.close();
    }
    writer.close();
}

void writeNumbers(Writer& writer, const QVariantList& list)
{
    QVector<double> numbers;
    numbers.reserve(list.size());
    for (const QVariant& number : list)
        numbers.append(number.toDouble());
    writer.open('v', "ad");
    writer.reals(numbers);
    writer.close();
}

void writeTexts(Writer& writer, const QStringList& texts)
{
    writer.open('v', "as");
    writer.open('a', "s");
    for (const QString& text : texts)
        writer.text(text);
    writer.close();
    writer.close();
}

void writeList(Writer& writer, const QVariantList& list)
{
    if (!list.isEmpty() && holdsOnly(list, QMetaType::Double)) {
        writeNumbers(writer, list);
        return;
    }
    const bool isTable = !list.isEmpty() && holdsOnly(list, QMetaType::QVariantMap);
    writer.open('v', isTable ? "aa{sv}" : "av");
    writer.open('a', isTable ? "a{sv}" : "v");
    for (const QVariant& element : list) {
        if (isTable)
            writeMap(writer, element.toMap());
        else
            writeValue(writer, element);
    }
    writer.close();
    writer.close();
}

QVariant readValue(Reader& reader, int depth);

QVariantMap readMap(Reader& reader, int depth)
{
    QVariantMap map;
    if (!reader.enter('a', "{sv}"))
        return map;
    while (!reader.atEnd() && reader.enter('e', "sv")) {
        const QString name = reader.text();
        map.insert(name, readValue(reader, depth + 1));
        reader.leave();
    }
    reader.leave();
    return map;
}

QStringList readTexts(Reader& reader)
{
    QStringList texts;
    if (!reader.enter('a', "s"))
        return texts;
    while (!reader.atEnd())
        texts += reader.text();
    reader.leave();
    return texts;
}

QVariantList readNumbers(Reader& reader)
{
    const QVector<double> numbers = reader.reals();
    QVariantList list;
    list.reserve(numbers.size());
    for (const double number : numbers)
        list.append(number);
    return list;
}

QVariantList readList(Reader& reader, const char* contents, int depth)
{
    QVariantList list;
    if (!reader.enter('a', contents))
        return list;
    while (!reader.atEnd())
        list.append(contents[0] == 'v' ? readValue(reader, depth + 1) : QVariant(readMap(reader, depth + 1)));
    reader.leave();
    return list;
}

/// What a value of that type travels as, of those that are neither lists nor maps; else null.
const char* simpleContents(int type)
{
    switch (type) {
    case QMetaType::Int:
        return "i";
    case QMetaType::UInt:
        return "u";
    case QMetaType::Bool:
        return "b";
    case QMetaType::Double:
    case QMetaType::Float:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return "d";
    case QMetaType::QString:
        return "s";
    default:
        return nullptr;
    }
}

QVariant readSimple(Reader& reader, char type)
{
    switch (type) {
    case 'i':
        return reader.int32();
    case 'u':
        return reader.uint32();
    case 'd':
        return reader.real();
    case 'b':
        return reader.boolean();
    case 's':
        return reader.text();
    default:
        reader.skip(QByteArray(1, type).constData());
        return QVariant();
    }
}

QVariant readContents(Reader& reader, const QByteArray& contents, int depth)
{
    if (contents.size() == 1)
        return readSimple(reader, contents.front());
    if (contents == "ad")
        return readNumbers(reader);
    if (contents == "as")
        return readTexts(reader);
    if (contents == "a{sv}")
        return readMap(reader, depth);
    if (contents == "aa{sv}")
        return readList(reader, "a{sv}", depth);
    if (contents == "av")
        return readList(reader, "v", depth);
    reader.skip(contents.constData());
    return QVariant();
}

QVariant readValue(Reader& reader, int depth)
{
    const QByteArray contents = reader.variantContents();
    if (contents.isEmpty() || depth > deepest || !reader.enter('v', contents.constData())) {
        reader.skip("v");
        return QVariant();
    }
    const QVariant value = readContents(reader, contents, depth);
    reader.leave();
    return value;
}

} // namespace

void writeValue(Writer& writer, const QVariant& value)
{
    switch (value.userType()) {
    case QMetaType::Int:
        writer.open('v', "i");
        writer.int32(value.toInt());
        break;
    case QMetaType::UInt:
        writer.open('v', "u");
        writer.uint32(value.toUInt());
        break;
    case QMetaType::Bool:
        writer.open('v', "b");
        writer.boolean(value.toBool());
        break;
    case QMetaType::Double:
    case QMetaType::Float:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        writer.open('v', "d");
        writer.real(value.toDouble());
        break;
    case QMetaType::QStringList:
        writeTexts(writer, value.toStringList());
        return;
    case QMetaType::QVariantList:
        writeList(writer, value.toList());
        return;
    case QMetaType::QVariantMap:
        writer.open('v', "a{sv}");
        writeMap(writer, value.toMap());
        break;
    default:
        writer.open('v', "s");
        writer.text(value.toString());
        break;
    }
    writer.close();
}

void writeNoValue(Writer& writer)
{
    writer.open('v', "y");
    writer.byte(0);
    writer.close();
}

QVariant readValue(Reader& reader)
{
    return readValue(reader, 0);
}

QVariant readValue(Reader& reader, const QVariant& similar)
{
    // Looking what comes next costs as much as reading it.
    const char* contents = simpleContents(similar.userType());
    if (!contents || !reader.enterIfNext('v', contents))
        return readValue(reader, 0);
    const QVariant value = readSimple(reader, *contents);
    reader.leave();
    return value;
}

int sizeOf(const QVariant& value)
{
    // A variant's signature and padding, or the head of a container.
    constexpr int head = 16;
    qint64 size = head;
    switch (value.userType()) {
    case QMetaType::QString:
        size += qint64(value.toString().size()) * 3;
        break;
    case QMetaType::QStringList:
        for (const QString& text : value.toStringList())
            size += 8 + qint64(text.size()) * 3;
        break;
    case QMetaType::QVariantList: {
        const QVariantList list = value.toList();
        if (holdsOnly(list, QMetaType::Double))
            size += qint64(list.size()) * 8;
        else
            for (const QVariant& element : list)
                size += sizeOf(element);
        break;
    }
    case QMetaType::QVariantMap: {
        const QVariantMap map = value.toMap();
        for (auto it = map.cbegin(); it != map.cend(); ++it)
            size += head + qint64(it.key().size()) * 3 + sizeOf(*it);
        break;
    }
    default:
        break;
    }
    return int(std::min<qint64>(size, largestSize));
}

int sizeOf(const QVector<ChoiceDescription>& choices)
{
    qint64 size = 0;
    for (const ChoiceDescription& choice : choices)
        size += 24 + 3 * (qint64(choice.name.size()) + choice.label.size());
    return int(std::min<qint64>(size, largestSize));
}

int changeSize(const QVariant& value, const QVector<ChoiceDescription>& choices)
{
    return 16 + sizeOf(value) + sizeOf(choices);
}

namespace {

bool holdsNul(const QVariant& value)
{
    switch (value.userType()) {
    case QMetaType::QString:
        return value.toString().contains(QChar(0));
    case QMetaType::QStringList: {
        const QStringList texts = value.toStringList();
        return std::any_of(texts.cbegin(), texts.cend(), [](const QString& text) { return text.contains(QChar(0)); });
    }
    case QMetaType::QVariantList: {
        const QVariantList list = value.toList();
        return std::any_of(list.cbegin(), list.cend(), holdsNul);
    }
    case QMetaType::QVariantMap: {
        const QVariantMap map = value.toMap();
        return std::any_of(map.cbegin(), map.cend(), holdsNul) || map.keys().join(QString()).contains(QChar(0));
    }
    default:
        return false;
    }
}

bool isDeep(const QVariant& value, int depth)
{
    const auto isDeeper = [depth](const QVariant& element) { return isDeep(element, depth + 1); };
    if (depth > deepest)
        return true;
    if (value.userType() == QMetaType::QVariantList) {
        const QVariantList list = value.toList();
        return std::any_of(list.cbegin(), list.cend(), isDeeper);
    }
    const QVariantMap map = value.userType() == QMetaType::QVariantMap ? value.toMap() : QVariantMap();
    return std::any_of(map.cbegin(), map.cend(), isDeeper);
}

} // namespace

bool canTravel(const QVariant& value)
{
    return sizeOf(value) < largestValue && !holdsNul(value) && !isDeep(value, 0);
}

} // namespace kiv::bus
