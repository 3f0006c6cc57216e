#pragma once

#include <QString>
#include <QtGlobal>

#include <optional>

/// The space that files take on a drive, counted in its blocks. A result that is out of range is the nearest number in
/// range.
namespace uiutils {

struct DriveSpace
{
    /// In bytes, at least 1.
    qint64 blockSize = 1;
    /// Blocks that everybody may use.
    qint64 available = 0;
};

/// The drive on which the instrument path is or would be: that of the longest part of it that exists. Nothing if no
/// part exists or the system gives no answer.
std::optional<DriveSpace> driveSpaceAt(const QString& path);

/// Blocks for `bytes`; 0 for 0 bytes and less.
qint64 blocksFor(qint64 bytes, qint64 blockSize);

/// Blocks of the file at the instrument path; 0 if there is none.
qint64 blocksOfFile(const QString& path, qint64 blockSize);

/// The maximum number of files and folders of a tree: more would keep the screens waiting.
constexpr int mostTreeEntries = 100 * 1000;

/// See FileUtils::getDirSize(). `source` has to exist. Nothing, with what is wrong with the tree in `problem`, if a
/// folder cannot be read, or if there are more than `mostEntries` files and folders.
std::optional<qint64> blocksOfTree(const QString& source, const QString& destination, qint64 blockSize,
        QString* problem, int mostEntries = mostTreeEntries);

/// The bytes in that many blocks.
qint64 bytesIn(qint64 blocks, qint64 blockSize);

/// Bytes as users read them, such as "1.50 G", in powers of 1000; less than 1000 is "0.00 K".
QString sizeText(qint64 bytes);

} // namespace uiutils
