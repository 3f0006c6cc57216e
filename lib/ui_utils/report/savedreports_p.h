#pragma once

#include "report/reportlisting_p.h"
#include "report/savedreportactions_p.h"
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
    QVector<SavedReport> rows;
    /// The list of reports that are not synced; nothing if it cannot be used.
    std::optional<QSet<QString>> unsynced;
    bool hasViewer = false;
    SavedReportActions actions;

    QVariant value(const SavedReport& row, int role) const;
    void takeFolder();
    void schedule();
    void watchBaseManager();
    void refresh();

private:
    QStringList listedFolders() const;
    void watchDisk();
    QVector<SavedReport> read();
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
    bool m_isScheduled = false;
    bool m_isRefreshing = false;
};

} // namespace uiutils
