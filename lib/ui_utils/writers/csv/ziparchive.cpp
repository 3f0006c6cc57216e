#include "writers/csv/ziparchive_p.h"

#include <QtEndian>

#include <zlib.h>

#include <algorithm>

namespace uiutils {

namespace {

/// Of the format: 2.0 has deflated files, 4.5 more than 65,534 of them.
constexpr quint16 plainVersion = 20;
constexpr quint16 largeVersion = 45;
constexpr quint16 mostFiles = 0xfffe;

/// Little-endian numbers, one after the other.
class Fields
{
public:
    template<typename Number> Fields& add(Number number)
    {
        const Number bytes = qToLittleEndian(number);
        m_bytes.append(reinterpret_cast<const char*>(&bytes), sizeof bytes);
        return *this;
    }
    Fields& add(const QByteArray& bytes)
    {
        m_bytes += bytes;
        return *this;
    }
    const QByteArray& bytes() const { return m_bytes; }

private:
    QByteArray m_bytes;
};

/// The bytes without the length that Qt puts before what zlib writes, and without the head and the sum around them.
QByteArray deflated(const QByteArray& contents)
{
    constexpr int head = 4 + 2;
    constexpr int tail = 4;
    const QByteArray bytes = qCompress(contents);
    return bytes.mid(head, bytes.size() - head - tail);
}

/// In the format of its origin: steps of two seconds from 1980 on.
QByteArray timeField(const QDateTime& given)
{
    const QDateTime first({1980, 1, 1}, {0, 0});
    const QDateTime time = given.isValid() ? std::max(given, first) : first;
    const QDate day = time.date();
    const QTime clock = time.time();
    return Fields()
            .add(quint16(clock.hour() << 11 | clock.minute() << 5 | clock.second() / 2))
            .add(quint16((day.year() - first.date().year()) << 9 | day.month() << 5 | day.day()))
            .bytes();
}

/// The number of files and the place of the directory do not fit the old fields.
QByteArray largeEnd(quint64 count, quint64 size, quint64 begin)
{
    constexpr quint64 restOfEnd = 44;
    return Fields()
            .add(QByteArray("PK\6\6"))
            .add(restOfEnd)
            .add(largeVersion)
            .add(largeVersion)
            .add(quint64(0))
            .add(count)
            .add(count)
            .add(size)
            .add(begin)
            .add(QByteArray("PK\6\7"))
            .add(quint32(0))
            .add(begin + size)
            .add(quint32(1))
            .bytes();
}

} // namespace

ZipArchive::ZipArchive(const QDateTime& time)
    : m_time(timeField(time))
{
}

void ZipArchive::addFile(const QString& name, const QByteArray& contents)
{
    constexpr quint16 nameIsUtf8 = 1 << 11;
    constexpr quint16 deflation = 8;
    const QByteArray path = name.toUtf8();
    const QByteArray body = deflated(contents);
    const auto* const bytes = reinterpret_cast<const Bytef*>(contents.constData());
    const QByteArray common = Fields().add(plainVersion)
                                      .add(nameIsUtf8)
                                      .add(deflation)
                                      .add(m_time)
                                      .add(quint32(crc32(0, bytes, uInt(contents.size()))))
                                      .add(quint32(body.size()))
                                      .add(quint32(contents.size()))
                                      .add(quint16(path.size()))
                                      .add(quint16(0))
                                      .bytes();
    // No comment, first disk, no attributes.
    const QByteArray nothing(10, '\0');
    m_directory += Fields().add(QByteArray("PK\1\2"))
                           .add(plainVersion)
                           .add(common)
                           .add(nothing)
                           .add(quint32(m_files.size()))
                           .add(path)
                           .bytes();
    m_files += "PK\3\4" + common + path + body;
    ++m_count;
}

QByteArray ZipArchive::finished()
{
    const bool isLarge = m_count > mostFiles;
    const quint16 count = isLarge ? 0xffff : quint16(m_count);
    const int begin = m_files.size();
    const int size = m_directory.size();
    m_files += m_directory;
    if (isLarge)
        m_files += largeEnd(m_count, quint64(size), quint64(begin));
    m_files += Fields().add(QByteArray("PK\5\6"))
                       .add(quint32(0))
                       .add(count)
                       .add(count)
                       .add(quint32(size))
                       .add(quint32(begin))
                       .add(quint16(0))
                       .bytes();
    return m_files;
}

} // namespace uiutils
