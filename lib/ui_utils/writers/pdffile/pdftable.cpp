#include "writers/pdffile/pdftable_p.h"

#include <zlib.h>

#include <cstring>

namespace uiutils::pdf {

namespace {

constexpr int mostSections = 16;
constexpr qint64 widestField = 7;
constexpr qint64 largestTable = qint64(64) * 1024 * 1024;

/// -1 if the entry is no number.
qint64 numberOf(const Dictionary& dictionary, const char* name)
{
    const QByteArray value = dictionary.value(name);
    Source source(value);
    const qint64 number = source.takeNumber();
    return source.isAt(value.size()) ? number : -1;
}

/// False if the data are not exactly of this size when inflated.
bool inflate(const QByteArray& data, qint64 size, QByteArray* inflated)
{
    auto got = uLongf(size);
    inflated->resize(int(size));
    return uncompress(reinterpret_cast<Bytef*>(inflated->data()), &got,
                   reinterpret_cast<const Bytef*>(data.constData()), uLong(data.size()))
            == Z_OK
            && got == uLongf(size);
}

} // namespace

std::optional<Table> Table::read(const QByteArray& contents, qint64 position, int end)
{
    Table table;
    QByteArray data;
    Source source(contents, position);
    table.m_position = position;
    table.m_number = source.takeNumber();
    const bool isRead = table.m_number > 0 && source.takeNumber() == 0 && source.take("obj")
            && source.takeDictionary(&table.m_keys) && source.takeStream(numberOf(table.m_keys, "Length"), &data)
            && source.take("startxref") && source.takeNumber() == position && source.take("%%EOF") && source.isAt(end)
            && table.readShape() && table.readSections() && table.readRows(data);
    return isRead ? std::make_optional(table) : std::nullopt;
}

bool Table::readShape()
{
    const QByteArray widths = m_keys.value("W");
    if (m_keys.value("Type") != "/XRef" || !Source(widths).takeNumbers(&m_widths, 3) || m_widths.size() != 3)
        return false;
    m_size = numberOf(m_keys, "Size");
    return m_size > 0 && m_widths.at(0) == 1 && m_widths.at(1) >= 1 && m_widths.at(1) <= widestField
            && m_widths.at(2) <= widestField;
}

bool Table::readSections()
{
    const QByteArray index = m_keys.value("Index");
    QVector<qint64> numbers;
    if (index.isNull())
        numbers = {0, m_size};
    else if (!Source(index).takeNumbers(&numbers, 2 * mostSections) || numbers.size() % 2 != 0)
        return false;
    qint64 next = 0;
    for (int i = 0; i < numbers.size(); i += 2) {
        const Section section {numbers.at(i), numbers.at(i + 1), m_rowCount};
        if (section.first < next || section.count > m_size - section.first)
            return false;
        next = section.first + section.count;
        m_rowCount += section.count;
        m_sections += section;
    }
    return m_rowCount > 0 && m_rowCount <= largestTable / (rowSize() + 1);
}

bool Table::readRows(const QByteArray& data)
{
    const QByteArray filter = m_keys.value("Filter");
    if (filter.isNull()) {
        m_rows = QByteArray(data.constData(), data.size());
        return m_rows.size() == m_rowCount * rowSize();
    }
    Dictionary parameters;
    const QByteArray source = m_keys.value("DecodeParms");
    if (filter != "/FlateDecode" || (!source.isNull() && !Source(source).takeDictionary(&parameters)))
        return false;
    const qint64 predictor = parameters.value("Predictor").isNull() ? 1 : numberOf(parameters, "Predictor");
    if (predictor == 1)
        return inflate(data, m_rowCount * rowSize(), &m_rows);
    return predictor >= 10 && parameters.entries().size() == 2 && numberOf(parameters, "Columns") == rowSize()
            && inflate(data, m_rowCount * (rowSize() + 1), &m_rows) && removePrediction();
}

/// Each row has a byte in front, which says whether it is the difference from the row above.
bool Table::removePrediction()
{
    const auto width = size_t(rowSize());
    auto* out = reinterpret_cast<uchar*>(m_rows.data());
    const uchar* in = out;
    for (qint64 row = 0; row < m_rowCount; ++row) {
        const uchar kind = *in++;
        if (kind != 0 && kind != 2)
            return false;
        std::memmove(out, in, width);
        for (size_t i = 0; kind == 2 && row > 0 && i < width; ++i)
            out[i] = uchar(out[i] + (out - width)[i]);
        out += width;
        in += width;
    }
    m_rows.truncate(int(m_rowCount * rowSize()));
    return true;
}

bool Table::isComplete() const
{
    return m_sections.size() == 1 && m_rowCount == m_size;
}

QVector<qint64> Table::numbers() const
{
    QVector<qint64> numbers;
    for (const Section& section : m_sections) {
        for (qint64 i = 0; i < section.count; ++i)
            numbers += section.first + i;
    }
    return numbers;
}

Table::Entry Table::entry(qint64 number) const
{
    for (const Section& section : m_sections) {
        if (number < section.first || number - section.first >= section.count)
            continue;
        const auto* byte = reinterpret_cast<const uchar*>(m_rows.constData())
                + (section.row + number - section.first) * rowSize();
        qint64 fields[3] = {0, 0, 0};
        for (int field = 0; field < 3; ++field) {
            for (qint64 i = 0; i < m_widths.at(field); ++i)
                fields[field] = fields[field] * 256 + *byte++;
        }
        return {fields[0], fields[1], fields[2]};
    }
    return {};
}

} // namespace uiutils::pdf
