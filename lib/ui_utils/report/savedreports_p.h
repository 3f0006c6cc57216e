#pragma once

#include "report/reportlisting_p.h"
#include "report/savedreportactions_p.h"
#include "report/savedreportorder_p.h"
#include "report/savedreports.h"

#include <QFileSystemWatcher>
#include <QPointer>
#include <QSet>

#include <optional>

class KIVClientItem;

namespace uiutils {

/// The rows of the model, and when and from where they are read.
class SavedReportsPrivate
{
public:
    explicit SavedReportsPrivate(SavedReports* model);

    QPointer<Report> report;
    /// The folder that was set; empty for the report's.
    QString ownFolder;
    QString folder;
    SavedReports::Drive drive = SavedReports::AllDrives;
    QString filter;
    SavedReports::SortKey sortKey = SavedReports::ByTime;
    bool isReversed = false;
    /// Those that were read, newest first, and those that are shown.
    QVector<SavedReport> all;
    QVector<SavedReport> rows;
    /// The list of reports that are not synced; nothing if it cannot be used.
    std::optional<QSet<QString>> unsynced;
    bool hasViewer = false;
    bool hasDesktop = false;
    SavedReportActions actions;

    QVariant value(const SavedReport& row, int role) const;
    void takeFolder();
    void schedule();
    void watchBaseManager();
    void refresh();
    /// Shows what was read by the present filter and order. False if a slot has deleted the model.
    bool rearrange();

private:
    QStringList listedFolders() const;
    void watchDisk();
    QVector<SavedReport> read();
    QVector<SavedReport> shown() const;
    void arrange();
    bool tellCounts(int rowsBefore, int allBefore);
    void takeRows(const QVector<SavedReport>& now);
    void removeRows(int first, int end);
    void insertRows(int first, const QVector<SavedReport>& reports);
    void replaceRow(int row, const SavedReport& report);
    void takeMarks();
    void tellChange();

    SavedReports* const q;
    ReportListing m_listing;
    QFileSystemWatcher m_disk;
    QPointer<KIVClientItem> m_usbAttached;
    /// That of the rows.
    SavedReportOrder m_order;
    bool m_isScheduled = false;
    /// Whether filter or order have changed since the rows were arranged.
    bool m_isRearranged = false;
    bool m_isRefreshing = false;
};

} // namespace uiutils
