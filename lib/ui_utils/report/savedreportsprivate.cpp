#include "report/savedreports_p.h"

#include "base/paths_p.h"
#include "core/itemids_p.h"
#include "core/searchwords_p.h"
#include "instrument/basemanager_p.h"
#include "instrument/drives_p.h"
#include "report/savedtext_p.h"
#include "report/saving/nosynclist_p.h"
#include "report/viewer_p.h"

#include <kiv/kivclientitem.h>

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <iterator>
#include <utility>

namespace uiutils {

SavedReportsPrivate::SavedReportsPrivate(SavedReports* model)
    : folder(paths::reports)
    // A slot may have deleted the model in the middle of an action.
    , actions([this, self = QPointer<SavedReports>(model)] {
        if (self)
            tellChange();
    })
    , q(model)
{
    QObject::connect(&m_disk, &QFileSystemWatcher::directoryChanged, q, [this] { schedule(); });
}

// --- Where the reports are ---

void SavedReportsPrivate::takeFolder()
{
    const QString unitFolder = report ? report->getReportFilePath() : QString(paths::reports);
    const QString now = ownFolder.isEmpty() ? unitFolder : ownFolder;
    if (std::exchange(folder, now) != now)
        Q_EMIT q->folderChanged();
}

/// Those whose drive is there.
QStringList SavedReportsPrivate::listedFolders() const
{
    QStringList folders;
    if (drive != SavedReports::Usb && instrument::isDriveThere(folder))
        folders += folder;
    const bool isListed = !folders.isEmpty() && QDir::cleanPath(folder) == QDir::cleanPath(paths::usb);
    if (drive != SavedReports::Unit && !isListed && instrument::isDriveThere(paths::usb))
        folders += paths::usb;
    return folders;
}

// --- When the list is read ---

void SavedReportsPrivate::schedule()
{
    if (std::exchange(m_isScheduled, true))
        return;
    const auto read = [this] {
        if (m_isScheduled)
            q->refresh();
    };
    QMetaObject::invokeMethod(q, read, Qt::QueuedConnection);
}

void SavedReportsPrivate::watchBaseManager()
{
    schedule();
    KIVClientItem* const item = instrument::baseManagerItem(itemids::usbAttached);
    if (!item || item == m_usbAttached)
        return;
    m_usbAttached = item;
    QObject::connect(item, &KIVClientItem::valueChanged, q, [this] { schedule(); });
}

/// Anew each time: a drive that was mounted, or a folder that was made again, is another folder under the old name.
void SavedReportsPrivate::watchDisk()
{
    const QStringList watched = m_disk.directories();
    if (!watched.isEmpty())
        m_disk.removePaths(watched);
    QStringList places;
    const QStringList folders = listedFolders() + QStringList {QFileInfo(paths::noSyncList).path()};
    for (const QString& listed : folders) {
        if (QFileInfo(onDisk(listed)).isDir())
            places += onDisk(listed);
    }
    if (!places.isEmpty())
        m_disk.addPaths(places);
}

void SavedReportsPrivate::refresh()
{
    // A slot that is notified of rows may ask for another reading.
    if (m_isRefreshing)
        return schedule();
    m_isScheduled = false;
    const QPointer<SavedReports> self(q);
    takeFolder();
    if (!self)
        return;
    m_isRefreshing = true;
    const int rowsBefore = rows.size();
    const int allBefore = all.size();
    watchDisk();
    all = read();
    if (m_isRearranged)
        arrange();
    else
        takeRows(shown());
    takeMarks();
    m_isRefreshing = false;
    tellCounts(rowsBefore, allBefore);
}

bool SavedReportsPrivate::rearrange()
{
    m_isRearranged = true;
    // The rows are being changed in the former order.
    if (m_isRefreshing) {
        schedule();
        return true;
    }
    const int rowsBefore = rows.size();
    const QPointer<SavedReports> self(q);
    m_isRefreshing = true;
    arrange();
    if (!self)
        return false;
    m_isRefreshing = false;
    return tellCounts(rowsBefore, all.size());
}

/// Rows that come and go one by one would take long where there are many, and users expect the top of another list.
void SavedReportsPrivate::arrange()
{
    m_isRearranged = false;
    q->beginResetModel();
    m_order = SavedReportOrder(sortKey, isReversed);
    rows = shown();
    q->endResetModel();
}

bool SavedReportsPrivate::tellCounts(int rowsBefore, int allBefore)
{
    const QPointer<SavedReports> self(q);
    const bool isOtherTotal = all.size() != allBefore;
    if (rows.size() != rowsBefore)
        Q_EMIT q->countChanged();
    if (self && isOtherTotal)
        Q_EMIT q->totalCountChanged();
    return self;
}

QVector<SavedReport> SavedReportsPrivate::read()
{
    QVector<SavedReport> reports;
    const QStringList folders = listedFolders();
    for (const QString& listed : folders)
        reports += listed == folder ? m_listing.reports(listed) : savedReports(listed);
    std::sort(reports.begin(), reports.end(), comesBefore);
    return reports;
}

// --- The rows ---

QVector<SavedReport> SavedReportsPrivate::shown() const
{
    QVector<SavedReport> reports;
    const SearchWords words(filter);
    std::copy_if(all.cbegin(), all.cend(), std::back_inserter(reports), [&](const SavedReport& report) {
        return words.areIn({report.name, report.format});
    });
    std::stable_sort(reports.begin(), reports.end(), m_order);
    return reports;
}

/// Both lists are in the same order. A report that was saved again has another place: its row is removed and another
/// one is inserted.
void SavedReportsPrivate::takeRows(const QVector<SavedReport>& now)
{
    int row = 0;
    for (int next = 0; next < now.size() || row < rows.size();) {
        int end = row;
        while (end < rows.size() && (next == now.size() || m_order(rows.at(end), now.at(next))))
            ++end;
        int fresh = next;
        while (end == row && fresh < now.size() && (row == rows.size() || m_order(now.at(fresh), rows.at(row))))
            ++fresh;
        if (end > row) {
            removeRows(row, end);
        } else if (fresh > next) {
            insertRows(row, now.mid(next, fresh - next));
            row += fresh - std::exchange(next, fresh);
        } else {
            replaceRow(row++, now.at(next++));
        }
    }
}

void SavedReportsPrivate::removeRows(int first, int end)
{
    q->beginRemoveRows(QModelIndex(), first, end - 1);
    rows.remove(first, end - first);
    q->endRemoveRows();
}

void SavedReportsPrivate::insertRows(int first, const QVector<SavedReport>& reports)
{
    q->beginInsertRows(QModelIndex(), first, first + reports.size() - 1);
    rows = rows.mid(0, first) + reports + rows.mid(first);
    q->endInsertRows();
}

/// Of one place in the order, only the size can have changed.
void SavedReportsPrivate::replaceRow(int row, const SavedReport& report)
{
    if (std::exchange(rows[row], report).size != report.size)
        Q_EMIT q->dataChanged(q->index(row), q->index(row), {SavedReports::SizeRole});
}

void SavedReportsPrivate::takeMarks()
{
    QString error;
    const std::optional<QStringList> list = noSyncList(&error);
    const auto listed = list ? std::optional(QSet<QString>(list->cbegin(), list->cend())) : std::nullopt;
    QVector<int> roles;
    if (std::exchange(unsynced, listed) != listed)
        roles += SavedReports::SyncedRole;
    const bool isViewerThere = uiutils::hasViewer();
    const bool isDesktop = uiutils::hasDesktop();
    if (std::exchange(hasViewer, isViewerThere) != isViewerThere || hasDesktop != isDesktop)
        roles += SavedReports::ViewableRole;
    hasDesktop = isDesktop;
    if (!roles.isEmpty() && !rows.isEmpty())
        Q_EMIT q->dataChanged(q->index(0), q->index(rows.size() - 1), roles);
}

QVariant SavedReportsPrivate::value(const SavedReport& row, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
    case SavedReports::NameRole:
        return row.name;
    case SavedReports::PathRole:
        return row.path;
    case SavedReports::FormatRole:
        return row.format;
    case SavedReports::SizeRole:
        return row.size;
    case SavedReports::TimeRole:
        return row.time;
    case SavedReports::CompressedRole:
        return row.isCompressed;
    case SavedReports::DriveRole:
        return instrument::isOnUsb(row.path) ? SavedReports::Usb : SavedReports::Unit;
    case SavedReports::SyncedRole:
        return unsynced ? !unsynced->contains(row.path) : QVariant();
    case SavedReports::ViewableRole:
        return (hasViewer && isForViewer(row.path)) || (hasDesktop && isForDesktop(row.path));
    case SavedReports::ReadableRole:
        return hasText(row.path);
    default:
        return {};
    }
}

/// The controller's own list is notified, too.
void SavedReportsPrivate::tellChange()
{
    schedule();
    if (report)
        Q_EMIT report->reportFilesChanged();
}

} // namespace uiutils
