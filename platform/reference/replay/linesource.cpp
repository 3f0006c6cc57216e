#include "linesource_p.h"

#include "recordingentry_p.h"
#include "replaytexts_p.h"

#include <QFileInfo>

#include <zlib.h>

#include <cstring>

namespace kiv::replay {

namespace {

constexpr int blockSize = 64 * 1024;
/// A line of this length is none, and what follows is not read: a few bytes of a compressed file can stand for
/// gigabytes.
constexpr qint64 hopelessLine = 8 * qint64(longestLine);

} // namespace

/// What gzip has compressed, in one piece or several.
class Inflation
{
public:
    Inflation()
    {
        // 16 more than the largest window: a gzip header is expected.
        inflateInit2(&m_stream, 16 + MAX_WBITS);
    }
    ~Inflation() { inflateEnd(&m_stream); }
    Q_DISABLE_COPY_MOVE(Inflation)

    bool needsInput() const { return m_stream.avail_in == 0; }
    void giveInput(const QByteArray& input)
    {
        m_input = input;
        m_stream.next_in = reinterpret_cast<Bytef*>(m_input.data());
        m_stream.avail_in = uInt(m_input.size());
    }
    /// Whether the input so far is complete.
    bool isBetween() const { return m_isBetween; }
    bool isDamaged() const { return m_isDamaged; }

    /// The next piece; may be empty while there is input.
    QByteArray output()
    {
        if (m_isDamaged || needsInput())
            return QByteArray();
        if (m_isBetween)
            inflateReset(&m_stream);
        m_isBetween = false;
        QByteArray block(blockSize, Qt::Uninitialized);
        m_stream.next_out = reinterpret_cast<Bytef*>(block.data());
        m_stream.avail_out = uInt(block.size());
        const int result = inflate(&m_stream, Z_NO_FLUSH);
        block.truncate(block.size() - int(m_stream.avail_out));
        m_isBetween = result == Z_STREAM_END;
        m_isDamaged = result != Z_OK && result != Z_STREAM_END && result != Z_BUF_ERROR;
        return block;
    }

private:
    z_stream m_stream {};
    QByteArray m_input;
    bool m_isBetween = false;
    bool m_isDamaged = false;
};

LineSource::LineSource() = default;
LineSource::~LineSource() = default;

bool LineSource::open(const QString& path, QString* problem)
{
    m_file.close();
    m_file.setFileName(path);
    // It is read more than once.
    if (QFileInfo::exists(path) && !QFileInfo(path).isFile()) {
        *problem = ReplayTexts::tr("%1 is not a file.").arg(path);
        return false;
    }
    if (!m_file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        *problem = ReplayTexts::tr("%1 cannot be read: %2.").arg(path, m_file.errorString());
        return false;
    }
    return rewind();
}

bool LineSource::rewind()
{
    if (!m_file.seek(0))
        return false;
    m_block.clear();
    m_at = 0;
    m_tooLong = 0;
    m_isCut = false;
    const QByteArray begin = m_file.read(2);
    m_file.seek(0);
    m_inflation = begin == "\x1f\x8b" ? std::make_unique<Inflation>() : nullptr;
    return true;
}

/// Reads the next block. Returns false at the end.
bool LineSource::fill()
{
    m_at = 0;
    m_block.clear();
    if (!m_inflation) {
        m_block = m_file.read(blockSize);
        return !m_block.isEmpty();
    }
    while (m_block.isEmpty()) {
        if (m_inflation->needsInput()) {
            const QByteArray input = m_file.read(blockSize);
            m_isCut = input.isEmpty() && !m_inflation->isBetween();
            if (input.isEmpty())
                return false;
            m_inflation->giveInput(input);
        }
        m_block = m_inflation->output();
        m_isCut = m_inflation->isDamaged();
        if (m_isCut && m_block.isEmpty())
            return false;
    }
    return true;
}

/// Takes what the block has of a line, as long as that may be kept. Returns whether its end was found.
bool LineSource::takeUpTo(QByteArray* line, qint64* length)
{
    const char* const begin = m_block.constData() + m_at;
    const int left = m_block.size() - m_at;
    const auto* const end = static_cast<const char*>(std::memchr(begin, '\n', size_t(left)));
    const int size = end ? int(end - begin) : left;
    *length += size;
    if (*length > longestLine)
        *line = QByteArray();
    else
        line->append(begin, size);
    m_at += size + (end ? 1 : 0);
    return end;
}

bool LineSource::next(QByteArray* line)
{
    qint64 length = 0;
    line->clear();
    for (;;) {
        if (m_at == m_block.size() && !fill()) {
            m_isCut = m_isCut || length > 0;
            m_tooLong += length > longestLine ? 1 : 0;
            return length > 0 && length <= longestLine;
        }
        const bool isWhole = takeUpTo(line, &length);
        if (length > hopelessLine) {
            ++m_tooLong;
            m_isCut = true;
            m_at = m_block.size();
            m_file.seek(m_file.size());
            m_inflation.reset();
            return false;
        }
        if (!isWhole)
            continue;
        if (length <= longestLine)
            return true;
        ++m_tooLong;
        length = 0;
        line->clear();
    }
}

} // namespace kiv::replay
