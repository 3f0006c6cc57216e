#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QJsonObject>
#include <QString>

#include <optional>

/// The file of a draft: a line with its header, then three lines of JSON in a zlib stream, whose checksum finds damage.
/// Each line is read with the limits of a report document.
namespace uiutils {

/// What the contents of a draft may have in bytes, before they are compressed.
constexpr int largestDraft = 64 * 1024 * 1024;

/// What can be said of a draft before it is read.
struct DraftHeader
{
    QDateTime savedAt;
    /// What it is of, for the user; at most 200 characters.
    QString title;
};

/// What is kept. All of it is shared until somebody changes it.
struct DraftContents
{
    QJsonObject data;
    QJsonObject report;
    QJsonObject document;
};

/// The bytes of a file. Nothing, with the reason for the user in `problem`, if there is more than could be read again.
std::optional<QByteArray> draftFile(const DraftHeader& header, const DraftContents& contents, QString* problem);

/// What was found in a file.
enum class DraftState {
    Good,
    Damaged,
    /// Made by another version of the library.
    Foreign,
    /// The disk does not give it: it may be good.
    Unreadable
};

/// Reads the header of the file at `path` on the disk, and checks the size of the file.
DraftState readDraftHeader(const QString& path, DraftHeader* header);

/// Reads the contents.
DraftState readDraft(const QString& path, DraftContents* contents);

} // namespace uiutils
