#include "writers/pdffile/pdftail_p.h"

#include "writers/emitter/xmp_p.h"
#include "writers/pdffile/pdftable_p.h"
#include "writers/pdffile/wholepdf_p.h"

#include <algorithm>

namespace uiutils::pdf {

namespace {

/// Document information, XMP packet and table.
constexpr int mostAdded = 3;
/// Keys that belong to one table.
constexpr const char* tableKeys[] = {"Type", "Size", "Index", "W", "Prev", "Length", "Filter", "DecodeParms"};
/// Keys of files of other kinds.
constexpr const char* strangeKeys[] = {"Encrypt", "XRefStm", "F", "FFilter", "FDecodeParms"};

/// The number of the object to which an entry refers; -1 if it does not.
int referenceIn(const Dictionary& dictionary, const char* name)
{
    const QByteArray value = dictionary.value(name);
    Source source(value);
    const int number = source.takeReference();
    return source.isAt(value.size()) ? number : -1;
}

bool isOrdinary(const Dictionary& trailer)
{
    const auto has = [&trailer](const char* name) { return !trailer.value(name).isNull(); };
    return std::none_of(std::begin(strangeKeys), std::end(strangeKeys), has);
}

/// A file: its table, and the one that an earlier change has added.
class Tables
{
public:
    explicit Tables(const QByteArray& contents)
        : m_contents(contents)
    {
    }

    bool read();

    const Table& base() const { return *m_base; }
    const Table& newest() const { return m_added ? *m_added : *m_base; }
    /// The bytes up to the end of the first table.
    int size() const { return m_size; }
    /// The beginning of an object that is not packed; nothing if it is not there.
    std::optional<Source> object(qint64 number) const;
    /// Whether nothing was added but the table and these objects.
    bool hasAddedOnly(int number, int otherNumber) const;

private:
    std::optional<Table> tableBefore(int end) const;
    bool readAdded();
    int beginOfAdded() const;
    bool isInPlace(qint64 number) const;

    const QByteArray& m_contents;
    std::optional<Table> m_base;
    std::optional<Table> m_added;
    int m_size = 0;
};

std::optional<Table> Tables::tableBefore(int end) const
{
    const int begin = qMax(0, end - tailSize);
    return Table::read(m_contents, tablePosition(m_contents.mid(begin, end - begin)), end);
}

bool Tables::read()
{
    m_size = m_contents.size();
    m_base = tableBefore(m_size);
    if (!m_base || !isOrdinary(m_base->keys()) || (!m_base->keys().value("Prev").isNull() && !readAdded()))
        return false;
    // The table counts as an object, or the next one might get its number.
    bool isSound = m_base->isComplete() && m_base->entry(m_base->number()).place == m_base->position();
    for (qint64 number = 0; isSound && number < m_base->size(); ++number)
        isSound = isInPlace(number);
    return isSound;
}

/// The table that was found is the one that a change has added.
bool Tables::readAdded()
{
    m_added = m_base;
    m_size = beginOfAdded();
    m_base = tableBefore(m_size);
    return m_base && isOrdinary(m_base->keys())
            && Source(m_added->keys().value("Prev")).takeNumber() == m_base->position()
            && m_added->number() == m_base->size() && m_added->size() == m_base->size() + 1;
}

/// 0 if the table has more than was ever added.
int Tables::beginOfAdded() const
{
    if (m_added->entryCount() > mostAdded)
        return 0;
    const QVector<qint64> numbers = m_added->numbers();
    qint64 begin = m_contents.size();
    for (const qint64 number : numbers)
        begin = qMin(begin, m_added->entry(number).place);
    return int(begin);
}

bool Tables::hasAddedOnly(int number, int otherNumber) const
{
    const QVector<qint64> numbers = m_added ? m_added->numbers() : QVector<qint64>();
    return std::all_of(numbers.begin(), numbers.end(),
            [&](qint64 added) { return added == number || added == otherNumber || added == m_added->number(); });
}

/// Whether the first table is right about an object, as far as that shows without reading the object.
bool Tables::isInPlace(qint64 number) const
{
    const Table::Entry entry = m_base->entry(number);
    switch (entry.kind) {
    case Table::Entry::Free:
        return true;
    case Table::Entry::Plain:
        return number > 0 && entry.place < m_size && entry.detail == 0
                && Source(m_contents, entry.place).takeObject(number);
    case Table::Entry::Packed:
        return number > 0 && m_base->entry(entry.place).kind == Table::Entry::Plain;
    default:
        return false;
    }
}

std::optional<Source> Tables::object(qint64 number) const
{
    Table::Entry entry = newest().entry(number);
    if (entry.kind == Table::Entry::None)
        entry = m_base->entry(number);
    Source source(m_contents, entry.place);
    const bool isThere = entry.kind == Table::Entry::Plain && source.takeObject(number);
    return isThere ? std::make_optional(source) : std::nullopt;
}

/// The keys that the next table must have as well.
Dictionary lasting(Dictionary trailer)
{
    for (const char* name : tableKeys)
        trailer.remove(name);
    return trailer;
}

bool readInformation(const Tables& tables, Tail* tail)
{
    tail->informationNumber = referenceIn(tail->trailer, "Info");
    auto source = tables.object(tail->informationNumber);
    if (!source || !source->takeDictionary(&tail->information) || !source->take("endobj"))
        return false;
    const QVector<Dictionary::Entry>& entries = tail->information.entries();
    return std::none_of(entries.begin(), entries.end(), [](const Dictionary::Entry& entry) {
        // A document is described by texts of its own. What has a type is something else.
        return entry.name == "Type" || Source(entry.value).takeReference() > 0;
    });
}

/// The packet of another program stays as it is.
bool readMetadata(const Tables& tables, const Dictionary& catalog, Tail* tail)
{
    Dictionary keys;
    QByteArray data;
    if (catalog.value("Metadata").isNull())
        return true;
    const int number = referenceIn(catalog, "Metadata");
    auto source = tables.object(number);
    if (!source || !source->takeDictionary(&keys))
        return false;
    if (!keys.value("Filter").isNull())
        return true;
    const QByteArray length = keys.value("Length");
    if (!source->takeStream(Source(length).takeNumber(), &data))
        return false;
    if (isOwnXmpPacket(data)) {
        tail->metadataNumber = number;
        tail->metadata = QByteArray(data.constData(), data.size());
    }
    return true;
}

bool readCatalog(const Tables& tables, Tail* tail)
{
    Dictionary catalog;
    auto source = tables.object(referenceIn(tail->trailer, "Root"));
    return source && source->takeDictionary(&catalog) && source->take("endobj") && catalog.value("Type") == "/Catalog"
            && readMetadata(tables, catalog, tail);
}

} // namespace

std::optional<Tail> readTail(const QByteArray& contents)
{
    Tables tables(contents);
    if (!contents.startsWith("%PDF-") || !tables.read())
        return std::nullopt;
    Tail tail;
    tail.size = tables.size();
    tail.tablePosition = tables.base().position();
    tail.objectCount = tables.base().size();
    tail.trailer = lasting(tables.newest().keys());
    const bool isRead = readInformation(tables, &tail) && readCatalog(tables, &tail)
            && tables.hasAddedOnly(tail.informationNumber, tail.metadataNumber);
    return isRead ? std::make_optional(tail) : std::nullopt;
}

} // namespace uiutils::pdf
