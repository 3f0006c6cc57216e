#include "report/saving/nosynclist_p.h"

#include "base/durablefile_p.h"
#include "base/folderlock_p.h"
#include "base/paths_p.h"
#include "core/itemids_p.h"
#include "instrument/basemanager_p.h"
#include "report/reportformats_p.h"
#include "report/reporttexts_p.h"

#include <kiv/kivclientinterface.h>
#include <kiv/kivclientitem.h>

#include <QByteArrayList>
#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <functional>
#include <optional>
#include <utility>

namespace uiutils {

namespace {

const char lineFeed = '\n';
/// Milliseconds to wait for others, who hold the list for as long as the disk takes to write it. The screens wait, too.
constexpr int lockPatience = 500;
/// How often the base manager is notified again because somebody has changed the list meanwhile.
constexpr int maximumNotices = 10;

/// The paths as they are on the disk: some would not survive being turned into text and back.
using Lines = QByteArrayList;
using Change = std::function<Lines(Lines)>;

QString recordOf(const QString& path)
{
    const int dot = path.lastIndexOf(QLatin1Char('.'));
    const bool hasSuffix = dot > path.lastIndexOf(QLatin1Char('/'));
    return (hasSuffix ? path.left(dot) : path) + QLatin1String(".json");
}

// lupdate would take the namespace of a result that is named for that of the text.
auto unreadable(const QString& reason, QString* error)
{
    *error = ReportTexts::tr("Cannot read %1: %2").arg(paths::noSyncList, reason);
    return std::nullopt;
}

/// A list that nobody has made yet is empty; one that exists and cannot be read is not.
std::optional<Lines> read(QString* error)
{
    const QByteArray place = QFile::encodeName(onDisk(paths::noSyncList));
    // Opening a pipe would wait for its other end.
    const int fd = ::open(place.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0)
        return errno == ENOENT ? std::optional<Lines>(Lines()) : unreadable(qt_error_string(errno), error);
    QFile file;
    file.open(fd, QIODevice::ReadOnly, QFile::AutoCloseHandle);
    const QByteArray text = file.read(largestNoSyncList + 1);
    if (file.error() != QFileDevice::NoError)
        return unreadable(file.errorString(), error);
    if (text.size() > largestNoSyncList)
        return unreadable(ReportTexts::tr("it has more than 1 MiB"), error);
    Lines lines = text.split(lineFeed);
    lines.removeAll(QByteArray());
    return lines;
}

bool write(const Lines& lines, QString* error)
{
    QByteArray text = lines.join(lineFeed);
    if (!text.isEmpty())
        text += lineFeed;
    if (text.size() > largestNoSyncList) {
        *error = ReportTexts::tr("Cannot write %1: %2")
                         .arg(paths::noSyncList, ReportTexts::tr("it would have more than 1 MiB"));
        return false;
    }
    return writeFileDurably(onDisk(paths::noSyncList), text, error);
}

QStringList textsOf(const Lines& lines)
{
    QStringList texts;
    for (const QByteArray& line : lines)
        texts.append(QString::fromUtf8(line));
    return texts;
}

Lines withoutDuplicates(const Lines& lines)
{
    Lines once;
    QSet<QByteArray> known;
    for (const QByteArray& line : lines) {
        if (known.contains(line))
            continue;
        known.insert(line);
        once.append(line);
    }
    return once;
}

/// The process that wrote the list may have been killed before it notified the base manager.
bool isKnown(const Lines& lines)
{
    const KIVClientItem* item = instrument::baseManagerItem(itemids::noSyncList);
    return !item || item->getValue().toStringList() == textsOf(lines);
}

/// Called after the lock is released, because those who are notified may change the list themselves. Whatever the order
/// of the processes, the last one to notify sends what the list contains.
void notifyBaseManager()
{
    KIVClientInterface* client = KIVClientInterface::getBaseMgrClient();
    QString error;
    std::optional<Lines> lines = client ? read(&error) : std::nullopt;
    for (int i = 0; lines && i < maximumNotices; ++i) {
        client->setItem(itemids::noSyncList, textsOf(*lines));
        std::optional<Lines> now = read(&error);
        if (now == lines)
            return;
        lines = std::move(now);
    }
}

/// Whether a change depends on what the list contains.
enum class Former { Needed, Dispensable };

bool edit(const Change& change, Former need, QString* error)
{
    const QString folder = QFileInfo(onDisk(paths::noSyncList)).path();
    makeFolderDurably(folder);
    {
        const FolderLock lock(folder, lockPatience);
        if (!lock.isLocked()) {
            *error = ReportTexts::tr("Cannot lock %1: %2").arg(paths::noSyncList, lock.error());
            return false;
        }
        const std::optional<Lines> former = read(error);
        if (!former && need == Former::Needed)
            return false;
        if (!former)
            qWarning("%s; it is replaced", qUtf8Printable(*error));
        const Lines now = change(former.value_or(Lines()));
        if (now == former && isKnown(now))
            return true;
        if (now != former && !write(now, error))
            return false;
    }
    notifyBaseManager();
    return true;
}

/// Whether the line of the record is needed by more than the report that is being removed: by a JSON report of that
/// name, or by reports in other formats that are still listed.
bool isNeeded(const QString& record, const QString& report, const Lines& lines)
{
    if (record == report)
        return false;
    const auto hasRecord = [&](const QByteArray& line) {
        const QString path = QString::fromUtf8(line);
        return path != record && recordOf(path) == record;
    };
    return QFile::exists(onDisk(record)) || std::any_of(lines.cbegin(), lines.cend(), hasRecord);
}

/// The compressed file of the same report, or for a compressed one the file without compression.
QString otherFormOf(const QString& path)
{
    return path.endsWith(gzipSuffix) ? path.chopped(gzipSuffix.size()) : path + gzipSuffix;
}

/// A JSON report that exists and is not listed was saved to be synced, whatever is saved beside it.
bool isSyncedReport(const QString& record, const Lines& lines)
{
    return QFile::exists(onDisk(record)) && !lines.contains(record.toUtf8());
}

Lines withReports(Lines lines, const QStringList& reports)
{
    for (const QString& report : reports)
        lines += report.toUtf8();
    for (const QString& report : reports) {
        if (!isSyncedReport(recordOf(report), lines))
            lines += recordOf(report).toUtf8();
    }
    return withoutDuplicates(lines);
}

Lines withoutReport(Lines lines, const QString& report)
{
    lines.removeAll(report.toUtf8());
    if (!isNeeded(recordOf(report), report, lines))
        lines.removeAll(recordOf(report).toUtf8());
    return lines;
}

Lines withoutReports(Lines lines, const QStringList& reports)
{
    for (const QString& report : reports) {
        lines = withoutReport(std::move(lines), report);
        const QString other = otherFormOf(report);
        if (lines.contains(other.toUtf8()) && !QFile::exists(onDisk(other)))
            lines = withoutReport(std::move(lines), other);
    }
    return lines;
}

/// A line feed would split a path in two.
bool areLines(const QStringList& paths, QString* error)
{
    const auto torn = std::find_if(
            paths.cbegin(), paths.cend(), [](const QString& path) { return path.contains(QLatin1Char(lineFeed)); });
    if (torn == paths.cend())
        return true;
    *error = ReportTexts::tr("%1 contains a line feed")
                     .arg(QString(*torn).replace(QLatin1Char(lineFeed), QChar(QChar::ReplacementCharacter)));
    return false;
}

} // namespace

std::optional<QStringList> noSyncList(QString* error)
{
    const std::optional<Lines> lines = read(error);
    return lines ? std::optional(textsOf(*lines)) : std::nullopt;
}

bool addToNoSyncList(const QStringList& paths, QString* error)
{
    return areLines(paths, error)
            && edit([&](const Lines& lines) { return withReports(lines, paths); }, Former::Needed, error);
}

bool removeFromNoSyncList(const QStringList& paths, QString* error)
{
    return areLines(paths, error)
            && edit([&](const Lines& lines) { return withoutReports(lines, paths); }, Former::Needed, error);
}

bool replaceNoSyncList(const QStringList& paths, QString* error)
{
    Lines lines;
    for (const QString& path : paths)
        lines += path.toUtf8();
    lines.removeAll(QByteArray());
    return areLines(paths, error)
            && edit([&](const Lines&) { return withoutDuplicates(lines); }, Former::Dispensable, error);
}

} // namespace uiutils
