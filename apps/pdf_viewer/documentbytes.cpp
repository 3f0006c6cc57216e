#include "documentbytes.h"

#include <QFile>
#include <QFileInfo>

#include <array>
#include <zlib.h>

namespace uiutils::viewer {

namespace {

/// The range in which readers look for the signature of a PDF file: other bytes may precede it.
constexpr int signatureRange = 1024;

bool isGzip(const QByteArray& bytes)
{
    return bytes.startsWith("\x1f\x8b");
}

/// A zlib stream for one gzip file.
class Inflater
{
public:
    explicit Inflater(const QByteArray& compressed)
    {
        constexpr int gzipOnly = 16;
        m_stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(compressed.constData()));
        m_stream.avail_in = uInt(compressed.size());
        m_isOpen = inflateInit2(&m_stream, MAX_WBITS + gzipOnly) == Z_OK;
    }
    ~Inflater()
    {
        if (m_isOpen)
            inflateEnd(&m_stream);
    }
    Q_DISABLE_COPY_MOVE(Inflater)

    /// All the bytes, or enough to show that there are too many.
    QByteArray all(Problem* problem)
    {
        QByteArray plain;
        while (m_isOpen && plain.size() <= mostBytes) {
            const int status = appendTo(&plain);
            if (status == Z_STREAM_END && !startNextMember())
                return plain;
            if (status != Z_OK && status != Z_STREAM_END)
                break;
        }
        *problem = plain.size() > mostBytes ? Problem::TooLarge : Problem::Damaged;
        return QByteArray();
    }

private:
    int appendTo(QByteArray* plain)
    {
        std::array<char, 64 * 1024> chunk;
        m_stream.next_out = reinterpret_cast<Bytef*>(chunk.data());
        m_stream.avail_out = uInt(chunk.size());
        const int status = inflate(&m_stream, Z_NO_FLUSH);
        plain->append(chunk.data(), int(chunk.size() - m_stream.avail_out));
        return status;
    }

    /// A gzip file may have several members, one after the other; anything else that follows is padding.
    bool startNextMember()
    {
        const QByteArray rest
                = QByteArray::fromRawData(reinterpret_cast<const char*>(m_stream.next_in), int(m_stream.avail_in));
        return isGzip(rest) && inflateReset(&m_stream) == Z_OK;
    }

    z_stream m_stream {};
    bool m_isOpen = false;
};

QByteArray readFile(const QString& path, Problem* problem)
{
    const QFileInfo info(path);
    if (!info.exists()) {
        *problem = Problem::Missing;
        return QByteArray();
    }
    // Opening a pipe would wait for a writer.
    if (!info.isFile()) {
        *problem = Problem::NoFile;
        return QByteArray();
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *problem = Problem::Unreadable;
        return QByteArray();
    }
    const QByteArray bytes = file.read(mostBytes + 1);
    if (file.error() != QFileDevice::NoError)
        *problem = Problem::Unreadable;
    else if (bytes.size() > mostBytes)
        *problem = Problem::TooLarge;
    return *problem == Problem::None ? bytes : QByteArray();
}

} // namespace

QByteArray readDocument(const QString& path, Problem* problem)
{
    *problem = Problem::None;
    QByteArray bytes = readFile(path, problem);
    if (*problem == Problem::None && isGzip(bytes))
        bytes = Inflater(bytes).all(problem);
    if (*problem != Problem::None)
        return QByteArray();
    if (!bytes.left(signatureRange).contains("%PDF-")) {
        *problem = Problem::NotPdf;
        return QByteArray();
    }
    return bytes;
}

} // namespace uiutils::viewer
