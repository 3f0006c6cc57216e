#pragma once

#include <QDateTime>
#include <QString>
#include <QVariantList>
#include <QVector>

#include <ctime>
#include <optional>

namespace uiutils {

/// A saved report.
struct SavedReport
{
    /// Instrument path.
    QString path;
    /// File name without the suffixes of format and compression.
    QString name;
    /// "PDF", "XML", "HTML", "TEXT", "JSON" or the label of a format that an application has added.
    QString format;
    /// Bytes on the disk.
    qint64 size = 0;
    /// When it was written last, in local time, and the same in milliseconds, which compare faster.
    QDateTime time;
    qint64 order = 0;
    /// Whether it is a gzip file.
    bool isCompressed = false;
};

/// The order of lists: newest first, those of one time by name. The same reports always have the same order.
bool comesBefore(const SavedReport& a, const SavedReport& b);

/// The reports in the folder, an instrument path, without those of its subfolders, in that order.
///
/// A report is a file, or a link to one, whose name ends in a format's suffix, with or without ".gz" after it, and does
/// not begin with "._". The list is empty if the folder cannot be read.
QVector<SavedReport> savedReports(const QString& folder);

/// The same as maps for pages, with `name`, `path`, `format`, `size` (a qlonglong), `time` and `compressed`.
QVariantList reportFiles(const QVector<SavedReport>& reports);

/// The list of savedReports(), kept for one folder at a time. The folder is read again only if its time of change says
/// that something in it was added, removed or renamed. Reports are saved by renaming. A report that another program
/// writes in place does not change that time, so a list is kept only if none of its reports changed in the 2 s before
/// it was read. A report that grows again after a longer pause shows its former size and time until something else
/// changes the folder.
///
/// A folder that changed in the tick of the system's clock in which it was read is read once more, because it may have
/// changed again at the same time; where times have no fractions of a second, this applies for two seconds. A folder on
/// a USB drive is always read, because the top folder of most has no such time.
class ReportListing
{
public:
    const QVector<SavedReport>& reports(const QString& folder);
    /// The same as maps, which are kept, too.
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
    QVector<SavedReport> m_reports;
    /// Empty until somebody wants them.
    QVariantList m_files;
};

} // namespace uiutils
