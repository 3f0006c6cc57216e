#include "files/drivespace_p.h"

#include "base/paths_p.h"

#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QVector>

#include <cerrno>
#include <cstring>
#include <dirent.h>
#include <limits>
#include <memory>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <utility>

namespace uiutils {

namespace {

constexpr qint64 most = std::numeric_limits<qint64>::max();

qint64 sumOf(qint64 a, qint64 b)
{
    qint64 sum = 0;
    if (__builtin_add_overflow(a, b, &sum))
        return a < 0 ? std::numeric_limits<qint64>::min() : most;
    return sum;
}

template<typename Unsigned> qint64 clamped(Unsigned number)
{
    return number > Unsigned(most) ? most : qint64(number);
}

/// The longest beginning of `path` that exists; empty if none does.
QString nearestExisting(const QString& path)
{
    QStringList parts = QFileInfo(path).absoluteFilePath().split(QLatin1Char('/'), Qt::SkipEmptyParts);
    while (!parts.isEmpty()) {
        const QString ancestor = QLatin1Char('/') + parts.join(QLatin1Char('/'));
        if (QFileInfo::exists(onDisk(ancestor)))
            return ancestor;
        parts.removeLast();
    }
    return QString();
}

using Listing = std::unique_ptr<DIR, int (*)(DIR*)>;

/// Walks a tree of folders. Links may lead to one folder in many ways, and back to one that the walk is in: each is
/// visited once. What is on other drives is left out. One folder is open at a time, however deep they are nested.
class TreeWalk
{
public:
    TreeWalk(qint64 blockSize, int mostEntries)
        : m_blockSize(blockSize)
        , m_mostEntries(mostEntries)
    {
    }

    qint64 blocksOf(const QString& source, const QString& destination)
    {
        enter({QFile::encodeName(onDisk(source)), destination, {}});
        while (m_problem.isEmpty() && !m_open.isEmpty()) {
            Folder& folder = m_open.last();
            if (folder.subfolders.isEmpty()) {
                m_open.removeLast();
                continue;
            }
            const QByteArray name = folder.subfolders.takeLast();
            enter({folder.place + '/' + name, below(folder.destination, name), {}});
        }
        return m_blocks;
    }

    /// Why the tree could not be counted; empty if it could.
    QString problem() const { return m_problem; }

private:
    struct Folder
    {
        QByteArray place;
        QString destination;
        /// The names of the subfolders that are not visited yet.
        QVector<QByteArray> subfolders;
    };

    static QString below(const QString& folder, const QByteArray& name)
    {
        return QStringLiteral("%1/%2").arg(folder, QFile::decodeName(name));
    }

    /// Counts the files of the folder and notes its subfolders.
    void enter(Folder folder)
    {
        if (!isNew(folder.place))
            return;
        const Listing listing(::opendir(folder.place.constData()), &::closedir);
        if (!listing) {
            fail(folder.place);
            return;
        }
        while (m_problem.isEmpty()) {
            errno = 0;
            const dirent* entry = ::readdir(listing.get());
            if (!entry && errno != 0)
                fail(folder.place);
            if (!entry)
                break;
            count(::dirfd(listing.get()), *entry, folder);
        }
        m_open.append(std::move(folder));
    }

    void count(int listing, const dirent& entry, Folder& folder)
    {
        if (std::strcmp(entry.d_name, ".") == 0 || std::strcmp(entry.d_name, "..") == 0)
            return;
        if (++m_entries > m_mostEntries) {
            m_problem = QStringLiteral("has more than %1 files and folders").arg(m_mostEntries);
            return;
        }
        // Hidden files and folders are not copied.
        if (entry.d_name[0] == '.')
            return;
        struct stat found = {};
        if (::fstatat(listing, entry.d_name, &found, 0) != 0) {
            // A link may lead nowhere.
            if (errno != ENOENT && entry.d_type != DT_LNK)
                fail(folder.place + '/' + entry.d_name);
        } else if (S_ISDIR(found.st_mode)) {
            folder.subfolders.append(entry.d_name);
        } else if (S_ISREG(found.st_mode)) {
            const qint64 freed = blocksOfFile(below(folder.destination, entry.d_name), m_blockSize);
            m_blocks = sumOf(m_blocks, blocksFor(found.st_size, m_blockSize) - freed);
        }
    }

    bool isNew(const QByteArray& place)
    {
        struct stat folder = {};
        if (::stat(place.constData(), &folder) != 0) {
            if (errno != ENOENT)
                fail(place);
            return false;
        }
        if (m_visited.isEmpty())
            m_device = folder.st_dev;
        const int before = m_visited.size();
        if (S_ISDIR(folder.st_mode) && folder.st_dev == m_device)
            m_visited.insert(folder.st_ino);
        return m_visited.size() > before;
    }

    void fail(const QByteArray& place)
    {
        m_problem = QStringLiteral("cannot be counted at %1: %2").arg(QFile::decodeName(place), qt_error_string(errno));
    }

    qint64 m_blockSize;
    int m_mostEntries;
    int m_entries = 0;
    qint64 m_blocks = 0;
    QString m_problem;
    dev_t m_device = 0;
    QSet<ino_t> m_visited;
    /// From the top folder down to the one that the walk is in.
    QVector<Folder> m_open;
};

} // namespace

std::optional<DriveSpace> driveSpaceAt(const QString& path)
{
    const QString existing = nearestExisting(path);
    if (existing.isEmpty())
        return std::nullopt;
    struct statvfs drive = {};
    if (::statvfs(QFile::encodeName(onDisk(existing)).constData(), &drive) != 0 || drive.f_bsize == 0)
        return std::nullopt;
    return DriveSpace {clamped(drive.f_bsize), clamped(drive.f_bavail)};
}

qint64 blocksFor(qint64 bytes, qint64 blockSize)
{
    return bytes <= 0 ? 0 : bytes / blockSize + (bytes % blockSize != 0 ? 1 : 0);
}

qint64 blocksOfFile(const QString& path, qint64 blockSize)
{
    // The size of a file that does not exist is 0.
    return blocksFor(QFileInfo(onDisk(path)).size(), blockSize);
}

std::optional<qint64> blocksOfTree(
        const QString& source, const QString& destination, qint64 blockSize, QString* problem, int mostEntries)
{
    TreeWalk walk(blockSize, mostEntries);
    const qint64 blocks = walk.blocksOf(source, destination);
    *problem = walk.problem();
    return problem->isEmpty() ? std::optional<qint64>(blocks) : std::nullopt;
}

qint64 bytesIn(qint64 blocks, qint64 blockSize)
{
    qint64 bytes = 0;
    return __builtin_mul_overflow(blocks, blockSize, &bytes) ? most : bytes;
}

QString sizeText(qint64 bytes)
{
    const auto text = [bytes](float unit, QChar letter) {
        return QStringLiteral("%1 %2").arg(double(float(bytes) / unit), 0, 'f', 2).arg(letter);
    };
    if (bytes > 999'999'999)
        return text(1e9F, QLatin1Char('G'));
    if (bytes >= 1'000'000)
        return text(1e6F, QLatin1Char('M'));
    if (bytes < 1000)
        return QStringLiteral("0.00 K");
    return text(1e3F, QLatin1Char('K'));
}

} // namespace uiutils
