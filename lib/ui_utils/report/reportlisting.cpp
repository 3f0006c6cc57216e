#include "report/reportlisting_p.h"

#include "base/paths_p.h"
#include "instrument/drives_p.h"
#include "report/reportformats_p.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QVariantMap>

#include <algorithm>
#include <sys/stat.h>

namespace uiutils {

namespace {

/// Takes the file's name apart. False if it is not that of a report.
bool readName(const QString& fileName, SavedReport* report)
{
    report->isCompressed = fileName.endsWith(gzipSuffix);
    const int end = fileName.size() - (report->isCompressed ? gzipSuffix.size() : 0);
    const QStringRef plain = fileName.leftRef(end);
    const auto& formats = allReportFormats();
    const auto format = std::find_if(formats.cbegin(), formats.cend(), [&](const FormatInfo& candidate) {
        return !candidate.suffix.isEmpty() && plain.endsWith(candidate.suffix);
    });
    if (format == formats.cend() || end == format->suffix.size())
        return false;
    report->name = fileName.left(end - format->suffix.size());
    report->format = format->label;
    return true;
}

QVector<SavedReport> reportsIn(const QString& folder)
{
    QVector<SavedReport> reports;
    const QString start = folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/');
    const QFileInfoList files = QDir(onDisk(folder)).entryInfoList(QDir::Files | QDir::Hidden, QDir::Unsorted);
    reports.reserve(files.size());
    for (const QFileInfo& file : files) {
        SavedReport report;
        // Some desktops put a companion with such a name beside each file of a USB drive.
        if (file.fileName().startsWith(QLatin1String("._")) || !readName(file.fileName(), &report))
            continue;
        report.path = start + file.fileName();
        report.size = file.size();
        report.time = file.lastModified();
        report.order = report.time.toMSecsSinceEpoch();
        reports.append(report);
    }
    return reports;
}

/// Whether certainly no report is being written now: that changes their times, but not the folder's.
bool areSettled(const QVector<SavedReport>& reports, const timespec& now)
{
    constexpr qint64 longestPause = 2000;
    const qint64 time = now.tv_sec * qint64(1000) + now.tv_nsec / 1'000'000;
    return std::none_of(reports.cbegin(), reports.cend(),
            [&](const SavedReport& report) { return qAbs(time - report.order) <= longestPause; });
}

} // namespace

bool comesBefore(const SavedReport& a, const SavedReport& b)
{
    if (a.order != b.order)
        return a.order > b.order;
    return a.name != b.name ? a.name < b.name : a.path < b.path;
}

QVector<SavedReport> savedReports(const QString& folder)
{
    // An empty path would mean the current folder of the process.
    if (folder.isEmpty() || folder.contains(QChar(QChar::Null)))
        return {};
    QVector<SavedReport> reports = reportsIn(folder);
    std::sort(reports.begin(), reports.end(), comesBefore);
    return reports;
}

QVariantList reportFiles(const QVector<SavedReport>& reports)
{
    QVariantList list;
    list.reserve(reports.size());
    for (const SavedReport& report : reports) {
        list += QVariantMap {{QStringLiteral("name"), report.name}, {QStringLiteral("path"), report.path},
                {QStringLiteral("format"), report.format}, {QStringLiteral("size"), report.size},
                {QStringLiteral("time"), report.time}, {QStringLiteral("compressed"), report.isCompressed}};
    }
    return list;
}

QVariantList ReportListing::files(const QString& folder)
{
    const QVector<SavedReport>& listed = reports(folder);
    if (m_files.isEmpty())
        m_files = reportFiles(listed);
    return m_files;
}

const QVector<SavedReport>& ReportListing::reports(const QString& folder)
{
    // Files and folders take their times from this clock: what changes from here on has this time or a later one.
    timespec now = {};
    ::clock_gettime(CLOCK_REALTIME_COARSE, &now);
    const std::optional<FolderState> state = instrument::isOnUsb(folder) ? std::nullopt : stateOf(folder);
    if (state && m_state && *m_state == *state && m_folder == folder)
        return m_reports;
    m_reports = instrument::isDriveThere(folder) ? savedReports(folder) : QVector<SavedReport>();
    m_files.clear();
    m_folder = folder;
    m_state = state && isSettled(*state, now) && areSettled(m_reports, now) ? state : std::nullopt;
    return m_reports;
}

bool ReportListing::FolderState::operator==(const FolderState& other) const
{
    return device == other.device && inode == other.inode && seconds == other.seconds
            && nanoseconds == other.nanoseconds;
}

std::optional<ReportListing::FolderState> ReportListing::stateOf(const QString& folder)
{
    struct stat info = {};
    if (folder.contains(QChar(QChar::Null)) || ::stat(QFile::encodeName(onDisk(folder)).constData(), &info) != 0)
        return std::nullopt;
    return FolderState {info.st_dev, info.st_ino, info.st_mtim.tv_sec, info.st_mtim.tv_nsec};
}

/// Whether a change from `now` on gives the folder another time.
bool ReportListing::isSettled(const FolderState& state, const timespec& now)
{
    constexpr qint64 coarsestTick = 2;
    if (state.nanoseconds == 0)
        return qAbs(now.tv_sec - state.seconds) > coarsestTick;
    return now.tv_sec != state.seconds || now.tv_nsec != state.nanoseconds;
}

} // namespace uiutils
