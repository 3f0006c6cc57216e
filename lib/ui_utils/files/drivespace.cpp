#include "files/drivespace_p.h"

#include "base/paths.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <limits>
#include <sys/stat.h>
#include <sys/statvfs.h>

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

/// The longest beginning of `path` that exists; empty without one.
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

/// Walks a tree of folders. Links may lead to one folder on many ways, and back to one that the walk is in: each is
/// visited once. What lies on other drives is not the tree's.
class TreeWalk
{
public:
    TreeWalk(qint64 blockSize, int mostEntries)
        : m_blockSize(blockSize)
        , m_entriesLeft(mostEntries)
    {
    }

    qint64 blocksOf(const QString& source, const QString& destination)
    {
        const QString place = onDisk(source);
        if (!isNew(place))
            return 0;
        qint64 blocks = 0;
        QDirIterator entries(place, QDir::Dirs | QDir::Files | QDir::Drives | QDir::NoDotAndDotDot);
        while (m_entriesLeft >= 0 && entries.hasNext()) {
            entries.next();
            --m_entriesLeft;
            blocks = sumOf(blocks, blocksOf(entries.fileInfo(), source, destination));
        }
        return blocks;
    }

    bool isComplete() const { return m_entriesLeft >= 0; }

private:
    qint64 blocksOf(const QFileInfo& entry, const QString& source, const QString& destination)
    {
        const QString target = QStringLiteral("%1/%2").arg(destination, entry.fileName());
        if (entry.isDir())
            return blocksOf(QStringLiteral("%1/%2").arg(source, entry.fileName()), target);
        return blocksFor(entry.size(), m_blockSize) - blocksOfFile(target, m_blockSize);
    }

    bool isNew(const QString& place)
    {
        struct stat folder = {};
        if (::stat(QFile::encodeName(place).constData(), &folder) != 0)
            return false;
        if (m_visited.isEmpty())
            m_device = folder.st_dev;
        const int before = m_visited.size();
        if (folder.st_dev == m_device)
            m_visited.insert(folder.st_ino);
        return m_visited.size() > before;
    }

    qint64 m_blockSize;
    int m_entriesLeft;
    dev_t m_device = 0;
    QSet<ino_t> m_visited;
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
    // The size of what does not exist is 0.
    return blocksFor(QFileInfo(onDisk(path)).size(), blockSize);
}

std::optional<qint64> blocksOfTree(const QString& source, const QString& destination, qint64 blockSize, int mostEntries)
{
    TreeWalk walk(blockSize, mostEntries);
    const qint64 blocks = walk.blocksOf(source, destination);
    return walk.isComplete() ? std::optional<qint64>(blocks) : std::nullopt;
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
