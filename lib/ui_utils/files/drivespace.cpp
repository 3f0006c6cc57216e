#include "files/drivespace_p.h"

#include "base/paths.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QVector>

#include <algorithm>
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

/// Walks a tree of folders. A link may lead back to a folder that the walk is in, which would never end.
class TreeWalk
{
public:
    explicit TreeWalk(qint64 blockSize)
        : m_blockSize(blockSize)
    {
    }

    qint64 blocksOf(const QString& source, const QString& destination)
    {
        struct stat folder = {};
        const QString place = onDisk(source);
        if (::stat(QFile::encodeName(place).constData(), &folder) != 0 || isOnTheWay(folder))
            return 0;
        m_way.append(folder);
        qint64 blocks = 0;
        const QDir::Filters filters = QDir::Dirs | QDir::Files | QDir::Drives | QDir::NoDotAndDotDot;
        const QFileInfoList entries = QDir(place).entryInfoList(filters, QDir::Unsorted);
        for (const QFileInfo& entry : entries)
            blocks = sumOf(blocks, blocksOf(entry, source, destination));
        m_way.removeLast();
        return blocks;
    }

private:
    qint64 blocksOf(const QFileInfo& entry, const QString& source, const QString& destination)
    {
        const QString target = QStringLiteral("%1/%2").arg(destination, entry.fileName());
        if (entry.isDir())
            return blocksOf(QStringLiteral("%1/%2").arg(source, entry.fileName()), target);
        return blocksFor(entry.size(), m_blockSize) - blocksOfFile(target, m_blockSize);
    }

    bool isOnTheWay(const struct stat& folder) const
    {
        return std::any_of(m_way.cbegin(), m_way.cend(), [&](const struct stat& passed) {
            return passed.st_ino == folder.st_ino && passed.st_dev == folder.st_dev;
        });
    }

    qint64 m_blockSize;
    QVector<struct stat> m_way;
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

qint64 blocksOfTree(const QString& source, const QString& destination, qint64 blockSize)
{
    return TreeWalk(blockSize).blocksOf(source, destination);
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
