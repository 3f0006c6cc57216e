#include "recordingfile_p.h"

#include "replaytexts_p.h"

#include <QFile>

#include <zlib.h>

#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <unistd.h>

namespace kiv::replay {

namespace {

using Clock = std::chrono::steady_clock;

constexpr auto writeInterval = std::chrono::milliseconds(400);
constexpr auto syncInterval = std::chrono::seconds(5);
/// So much is written without waiting for more.
constexpr int fullPiece = 64 * 1024;
/// A disk that is so far behind does not catch up.
constexpr int mostPending = 64 * 1024 * 1024;

} // namespace

/// Compresses pieces so that a reader gets each of them as soon as it is written.
class Deflation
{
public:
    Deflation()
    {
        // The fastest level: lines of one recording are so much alike that the others gain little. 16 for gzip.
        deflateInit2(&m_stream, Z_BEST_SPEED, Z_DEFLATED, 16 + MAX_WBITS, 8, Z_DEFAULT_STRATEGY);
    }
    ~Deflation() { deflateEnd(&m_stream); }
    Q_DISABLE_COPY_MOVE(Deflation)

    QByteArray compress(QByteArray piece, bool isLast)
    {
        QByteArray result;
        m_stream.next_in = reinterpret_cast<Bytef*>(piece.data());
        m_stream.avail_in = uInt(piece.size());
        do {
            QByteArray block(fullPiece, Qt::Uninitialized);
            m_stream.next_out = reinterpret_cast<Bytef*>(block.data());
            m_stream.avail_out = uInt(block.size());
            deflate(&m_stream, isLast ? Z_FINISH : Z_SYNC_FLUSH);
            result.append(block.constData(), block.size() - int(m_stream.avail_out));
        } while (m_stream.avail_out == 0);
        return result;
    }

private:
    z_stream m_stream {};
};

std::unique_ptr<RecordingFile> RecordingFile::create(const QString& path, Form form, QString* problem)
{
    const bool isOutput = path == QLatin1String("-");
    const int descriptor = isOutput
            ? ::fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 3)
            : ::open(QFile::encodeName(path).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (descriptor >= 0)
        return std::unique_ptr<RecordingFile>(new RecordingFile(descriptor, path, form));
    *problem = errno == EEXIST ? ReplayTexts::tr("%1 exists. Name another file, or remove that one.").arg(path)
                               : ReplayTexts::tr("%1 cannot be written: %2.").arg(path, qt_error_string(errno));
    return nullptr;
}

RecordingFile::RecordingFile(int descriptor, const QString& path, Form form)
    : m_path(path)
    , m_descriptor(descriptor)
    , m_deflation(form == Compressed ? std::make_unique<Deflation>() : nullptr)
    , m_thread([this] { work(); })
{
}

RecordingFile::~RecordingFile()
{
    close();
}

void RecordingFile::append(const QByteArray& lines)
{
    bool isFull = false;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (!m_problem.isEmpty() || m_isEnding)
            return;
        const int before = m_pending.size();
        isFull = before + lines.size() > mostPending;
        if (!isFull)
            m_pending += lines;
        // The thread is woken once, however long it takes to come.
        const bool isPiece = before < fullPiece && m_pending.size() >= fullPiece;
        if (!isPiece && !isFull)
            return;
    }
    if (isFull)
        fail(ReplayTexts::tr("%1 is written too slowly. The recording ends here.").arg(m_path));
    m_wake.notify_one();
}

bool RecordingFile::close()
{
    if (m_descriptor >= 0) {
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            m_isEnding = true;
        }
        m_wake.notify_one();
        m_thread.join();
        if (::close(m_descriptor) != 0 && problem().isEmpty())
            fail(errno);
        m_descriptor = -1;
    }
    return problem().isEmpty();
}

QString RecordingFile::problem() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_problem;
}

qint64 RecordingFile::size() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_size;
}

// --- The thread ----------------------------------------------------------------------------------

void RecordingFile::work()
{
    Clock::time_point synced = Clock::now();
    // It and what is pending take turns, and keep what they have allocated.
    QByteArray piece;
    piece.reserve(2 * fullPiece);
    for (bool isLast = false; !isLast;) {
        piece.resize(0);
        {
            std::unique_lock<std::mutex> lock(m_mutex);
            m_wake.wait_for(lock, writeInterval,
                    [this] { return m_isEnding || !m_problem.isEmpty() || m_pending.size() >= fullPiece; });
            isLast = m_isEnding;
            if (!m_problem.isEmpty())
                return;
            piece.swap(m_pending);
        }
        if ((isLast || !piece.isEmpty()) && !writePiece(piece, isLast))
            return;
        if (!isLast && Clock::now() - synced < syncInterval)
            continue;
        // Without it a drive that was pulled would not be heard of.
        if (!sync())
            return;
        synced = Clock::now();
    }
}

bool RecordingFile::writePiece(const QByteArray& lines, bool isLast)
{
    if (!m_deflation)
        return write(lines);
    // What fails is lost from its beginning, so it is not to be long.
    for (int begin = 0; begin < lines.size(); begin += fullPiece) {
        if (!write(m_deflation->compress(lines.mid(begin, fullPiece), false)))
            return false;
    }
    return !isLast || write(m_deflation->compress(QByteArray(), true));
}

bool RecordingFile::write(const QByteArray& bytes)
{
    qint64 done = 0;
    while (done < bytes.size()) {
        const ssize_t count = ::write(m_descriptor, bytes.constData() + done, size_t(bytes.size() - done));
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0) {
            const int error = errno;
            cutAfterLine(bytes, done);
            fail(error);
            return false;
        }
        done += count;
    }
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_size += bytes.size();
    return true;
}

/// Leaves the file with what is complete of a piece of which so much was written.
void RecordingFile::cutAfterLine(const QByteArray& bytes, qint64 written)
{
    const qint64 kept = m_deflation || written == 0 ? 0 : bytes.lastIndexOf('\n', int(written) - 1) + 1;
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_size += kept;
    // Standard output may be no file, and where a drive has gone there is nothing to be cut.
    if (m_path != QLatin1String("-"))
        static_cast<void>(::ftruncate(m_descriptor, m_size) == 0);
}

bool RecordingFile::sync()
{
    // What is no file cannot be synced, and need not be.
    if (::fdatasync(m_descriptor) == 0 || errno == EINVAL || errno == EROFS || errno == ENOTSUP)
        return true;
    fail(errno);
    return false;
}

void RecordingFile::fail(int error)
{
    fail(ReplayTexts::tr("%1 cannot be written: %2. The recording ends here.").arg(m_path, qt_error_string(error)));
}

void RecordingFile::fail(const QString& reason)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (!m_problem.isEmpty())
            return;
        m_problem = reason;
        m_pending = QByteArray();
    }
    Q_EMIT failed(reason);
}

} // namespace kiv::replay
