#pragma once

#include <QString>
#include <QtGlobal>

#include <optional>

/// What files take on a drive, counted in its blocks. Results that no number holds are the nearest that one does.
namespace uiutils {

struct DriveSpace
{
    /// In bytes, at least 1.
    qint64 blockSize = 1;
    /// Blocks that are free to everybody.
    qint64 available = 0;
};

/// The drive on which `path` lies or would lie: that of the nearest part of it that exists. Nothing when no part exists
/// or the system does not say. An instrument path.
std::optional<DriveSpace> driveSpaceAt(const QString& path);

/// Blocks for `bytes`; none for 0 and less.
qint64 blocksFor(qint64 bytes, qint64 blockSize);

/// Blocks of the file at the instrument path, 0 when there is none.
qint64 blocksOfFile(const QString& path, qint64 blockSize);

/// The files and folders that a tree may have: more would keep the screens waiting.
constexpr int mostTreeEntries = 100 * 1000;

/// See FileUtils::getDirSize(). `source` has to exist. Nothing, and what is wrong with the tree in `problem`, when a
/// folder cannot be read and when there are more than `mostEntries` below it.
std::optional<qint64> blocksOfTree(const QString& source, const QString& destination, qint64 blockSize,
        QString* problem, int mostEntries = mostTreeEntries);

/// Bytes in so many blocks.
qint64 bytesIn(qint64 blocks, qint64 blockSize);

/// Bytes as users read them, such as "1.50 G", by powers of 1000; less than 1000 reads as "0.00 K".
QString sizeText(qint64 bytes);

} // namespace uiutils
