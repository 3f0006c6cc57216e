#pragma once

#include <QString>
#include <QVariantList>

#include <ctime>
#include <optional>

namespace uiutils {

/// The reports that lie in the folder, an instrument path, but not those of its sub-folders: newest first, those of
/// one time by name. One map each:
///
/// | key | value |
/// |---|---|
/// | `name` | file name without the suffixes of format and compression |
/// | `path` | instrument path |
/// | `format` | "PDF", "XML", "HTML", "TEXT" or "JSON" |
/// | `size` | bytes on the disk, a qlonglong |
/// | `time` | when it was written last, a QDateTime in local time |
/// | `compressed` | whether it is a gzip file |
///
/// A report is a file, or a link to one, whose name ends in a format's suffix, with ".gz" behind it or not, and does
/// not begin with "._". Empty for a folder that cannot be read.
QVariantList reportFiles(const QString& folder);

/// The same of one folder at a time, which is read again only when something came into it, went or was renamed since:
/// its time of change tells. Reports are saved by renaming. One that another program writes in place does not change
/// that time, so a list is only kept when none of its reports changed in the 2 s before it was read; a report that
/// grows again after a longer pause shows its former size and time until something else changes the folder.
///
/// A folder that changed in the tick of the system's clock in which it was read is read once more, since it may have
/// changed again without another time; where times have no fractions of a second, for two seconds. One on a stick is
/// always read: the top of most has no such time.
class ReportListing
{
public:
    QVariantList files(const QString& folder);

private:
    struct FolderState
    {
        quint64 device = 0;
        quint64 inode = 0;
        qint64 seconds = 0;
        qint64 nanoseconds = 0;
        bool operator==(const FolderState& other) const;
    };

    static std::optional<FolderState> stateOf(const QString& folder);
    static bool isSettled(const FolderState& state, const timespec& now);

    QString m_folder;
    /// Of the folder when it was read; none when it may have changed since without another time.
    std::optional<FolderState> m_state;
    QVariantList m_files;
};

} // namespace uiutils
