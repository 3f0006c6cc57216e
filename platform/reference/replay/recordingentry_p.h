#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>

#include <optional>

namespace kiv::replay {

// The form of a recording; docs/recordings.md describes it.

/// The version that is written, and the greatest that is read.
constexpr int formatVersion = 1;

/// Longest line in bytes. A million numbers fit.
constexpr int longestLine = 32 * 1024 * 1024;
/// Most values in a line, and most objects and lists: an empty list takes two bytes in a line and a hundred in memory.
constexpr int mostValues = 2 * 1000 * 1000;
constexpr int mostContainers = 750 * 1000;
/// Latest time in a recording: ten years. What is later is no time.
constexpr qint64 latestTime = qint64(10) * 366 * 24 * 3600 * 1000;

/// The first line of a recording that begins now, with its line feed.
QByteArray headerLine();

/// Whether a line keeps the limits.
bool isReadable(const QByteArray& line);

/// About how many bytes of memory hold a value.
qint64 memoryOf(const QJsonValue& value);

/// What a line says.
struct Entry
{
    enum Kind {
        /// The first line of a recording, or of one that was appended.
        Header,
        /// A service is there; its items follow.
        Snapshot,
        /// A service has gone.
        Gone,
        /// A service reports an error.
        Error,
        /// Everything about an item.
        Item,
        /// An item has gone.
        Removed,
        /// What has changed of an item.
        Change,
    };

    Kind kind = Header;
    /// Milliseconds since the recording began.
    qint64 time = 0;
    QString service;
    /// The item's id; empty for a service.
    QString id;
    /// All members of the line.
    QJsonObject fields;
};

/// Reads a line; nothing for one that is not of a recording.
std::optional<Entry> readEntry(const QByteArray& line);

/// Whether a header is of a version that can be read.
bool isKnownVersion(const Entry& header);

} // namespace kiv::replay
