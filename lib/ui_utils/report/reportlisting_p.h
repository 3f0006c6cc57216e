#pragma once

#include <QString>
#include <QVariantList>

#include <ctime>
#include <optional>

namespace uiutils {

/// The reports in the folder, an instrument path, without those of its subfolders: newest first, those of one time by
/// name. One map each:
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
/// A report is a file, or a link to one, whose name ends in a format's suffix, with or without ".gz" after it, and does
/// not begin with "._". The list is empty if the folder cannot be read.
QVariantList reportFiles(const QString& folder);

/// The same list, kept for one folder at a time. The folder is read again only if its time of change says that
/// something in it was added, removed or renamed. Reports are saved by renaming. A report that another program writes
/// in place does not change that time, so a list is kept only if none of its reports changed in the 2 s before it was
/// read. A report that grows again after a longer pause shows its former size and time until something else changes the
/// folder.
///
/// A folder that changed in the tick of the system's clock in which it was read is read once more, because it may have
/// changed again at the same time; where times have no fractions of a second, this applies for two seconds. A folder on
/// a USB drive is always read, because the top folder of most has no such time.
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
    /// The state of the folder when it was read; none if it may have changed after that at the same time.
    std::optional<FolderState> m_state;
    QVariantList m_files;
};

} // namespace uiutils
