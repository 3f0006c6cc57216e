#include "writers/emitter/pdfoutput_p.h"

#include "writers/emitter/pdfsyntax_p.h"

#include <QIODevice>

namespace uiutils::pdf {

namespace {

/// The best of time and size, for what repeats itself less and for what repeats itself more.
constexpr int levelOfContent = 5;
constexpr int levelOfObjects = 4;
/// Objects of one object stream: a reader inflates all of them for one.
constexpr int objectsOfAStream = 200;
/// A type, an offset or a number, an index.
constexpr int columns = 7;

void appendEntry(QByteArray& rows, QByteArray& last, int type, quint32 at, int index)
{
    const char entry[columns]
            = {char(type), char(at >> 24), char(at >> 16), char(at >> 8), char(at), char(index >> 8), char(index)};
    // Each row is written as its difference from the one above, because neighbours differ little.
    rows += char(2);
    for (int i = 0; i < columns; ++i)
        rows += char(entry[i] - last.at(i));
    last = QByteArray(entry, columns);
}

QByteArray deflated(const QByteArray& bytes, int level)
{
    // Four bytes of length come before what zlib writes.
    constexpr int prefix = 4;
    return qCompress(bytes, level).mid(prefix);
}

} // namespace

PdfOutput::PdfOutput(QIODevice* device)
    : m_device(device)
{
    // Number 0 is not used. The comment's bytes say that the file is not text.
    m_places.emplace_back();
    put("%PDF-1.7\n%\xe2\xe3\xcf\xd3\n");
}

int PdfOutput::reserve()
{
    m_places.emplace_back();
    return int(m_places.size()) - 1;
}

void PdfOutput::put(const QByteArray& bytes)
{
    if (m_hasFailed)
        return;
    m_hasFailed = m_device->write(bytes) != bytes.size();
    m_offset += quint32(bytes.size());
}

void PdfOutput::beginPlain(int object)
{
    m_places[size_t(object)] = {m_offset, plain};
    put(QByteArray::number(object) + " 0 obj\n");
}

void PdfOutput::write(int object, const QByteArray& body)
{
    if (m_streamCount == 0)
        m_streamNumber = reserve();
    m_places[size_t(object)] = {quint32(m_streamNumber), quint16(m_streamCount)};
    ++m_streamCount;
    appendInteger(m_streamNumbers, object);
    m_streamNumbers += ' ';
    appendInteger(m_streamNumbers, m_streamBodies.size());
    m_streamNumbers += ' ';
    m_streamBodies += body;
    m_streamBodies += '\n';
    if (m_streamCount == objectsOfAStream)
        flushObjects();
}

void PdfOutput::flushObjects()
{
    if (m_streamCount == 0)
        return;
    const QByteArray entries = "/Type/ObjStm/N " + QByteArray::number(m_streamCount) + "/First "
            + QByteArray::number(m_streamNumbers.size()) + "/Filter/FlateDecode";
    m_streamCount = 0;
    putStream(m_streamNumber, entries, deflated(m_streamNumbers + m_streamBodies, levelOfObjects));
    m_streamNumbers.resize(0);
    m_streamBodies.resize(0);
}

void PdfOutput::writePlain(int object, const QByteArray& body)
{
    beginPlain(object);
    put(body + "\nendobj\n");
}

void PdfOutput::writeStream(int object, const QByteArray& entries, const QByteArray& data, Filter filter)
{
    if (filter == AsIs)
        putStream(object, entries, data);
    else
        putStream(object, entries + "/Filter/FlateDecode", deflated(data, levelOfContent));
}

void PdfOutput::putStream(int object, const QByteArray& entries, const QByteArray& stored)
{
    beginPlain(object);
    put("<<" + entries + "/Length " + QByteArray::number(stored.size()) + ">>stream\n");
    put(stored);
    put("\nendstream\nendobj\n");
}

QByteArray PdfOutput::table() const
{
    QByteArray rows;
    rows.reserve(int(m_places.size()) * (columns + 1));
    QByteArray last(columns, '\0');
    for (const Place& place : m_places) {
        if (place.index == missing)
            appendEntry(rows, last, 0, 0, 0xffff);
        else if (place.index == plain)
            appendEntry(rows, last, 1, place.at, 0);
        else
            appendEntry(rows, last, 2, place.at, place.index);
    }
    return rows;
}

bool PdfOutput::finish(int catalog, int information, const QByteArray& id)
{
    flushObjects();
    const int number = reserve();
    const quint32 begin = m_offset;
    m_places[size_t(number)] = {begin, plain};
    const QByteArray identifier = hexString(id);
    writeStream(number,
            "/Type/XRef/Size " + QByteArray::number(int(m_places.size()))
                    + "/W[1 4 2]/DecodeParms<</Predictor 12/Columns " + QByteArray::number(columns) + ">>/Root "
                    + referenceTo(catalog) + "/Info " + referenceTo(information) + "/ID[" + identifier + identifier
                    + ']',
            table());
    put("startxref\n" + QByteArray::number(begin) + "\n%%EOF\n");
    return !m_hasFailed;
}

} // namespace uiutils::pdf
