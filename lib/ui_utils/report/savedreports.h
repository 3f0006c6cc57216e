#pragma once

#include "core/uiutils_export.h"
#include "report/report.h"

#include <QAbstractListModel>

#include <memory>

namespace uiutils {

class SavedReportsPrivate;

/// The saved reports on the unit and on the USB drive, and what users can do with them. In QML: SavedReports.
///
/// | role | value |
/// |---|---|
/// | `name` | file name without the suffixes of format and compression |
/// | `path` | instrument path, which the operations take |
/// | `format` | "PDF", "XML", "HTML", "TEXT", "JSON" or the label of a format that an application has added |
/// | `size` | bytes on the disk, a qlonglong |
/// | `time` | when it was written last, a QDateTime in local time |
/// | `compressed` | whether it is a gzip file |
/// | `drive` | Unit or Usb |
/// | `synced` | whether the cloud may take it; invalid if the list of reports that are not synced cannot be used |
/// | `viewable` | whether open() shows it |
/// | `readable` | whether readText() has its text: a TEXT, XML, HTML or JSON report |
///
/// The ending of its name makes a file a report; reports in sub-folders are not listed. The list is read when control
/// returns to the event loop, after construction, after a setter, and when reports have come or gone, whoever saved or
/// deleted them; the rows that stay keep their place. A report that another program writes in place is noticed at the
/// next reading. Setters emit their notifier when the value changes. Everything runs on the GUI thread.
class UIUTILS_EXPORT SavedReports : public QAbstractListModel
{
    Q_OBJECT
    /// The controller of the reports, which stays the caller's; null by default. Its folder is listed, it opens
    /// reports, and it emits reportFilesChanged() when an operation has changed the files.
    Q_PROPERTY(Report* report READ report WRITE setReport NOTIFY reportChanged)
    /// The folder of the unit's reports, an instrument path. Until one is set, and for "", that of `report`, else
    /// "/cust/public/reports/".
    Q_PROPERTY(QString folder READ folder WRITE setFolder NOTIFY folderChanged)
    /// Which reports are listed: those in the folder, those on the USB drive ("/mnt/usb/", none without a drive), or
    /// both, the default.
    Q_PROPERTY(uiutils::SavedReports::Drive drive READ drive WRITE setDrive NOTIFY driveChanged)
    /// The number of rows.
    Q_PROPERTY(int count READ count NOTIFY countChanged)
    /// Words separated by spaces: only reports are listed that have each of them in name or format, in capital or small
    /// letters. Empty, the default, for all.
    Q_PROPERTY(QString filter READ filter WRITE setFilter NOTIFY filterChanged)
    /// By what the rows are ordered; ByTime by default. Another order, like another filter, resets the model.
    Q_PROPERTY(uiutils::SavedReports::SortKey sortKey READ sortKey WRITE setSortKey NOTIFY sortKeyChanged)
    /// Whether the order is the other way round; false by default.
    Q_PROPERTY(bool reversed READ isReversed WRITE setReversed NOTIFY reversedChanged)
    /// The number of rows that there are without a filter.
    Q_PROPERTY(int totalCount READ totalCount NOTIFY totalCountChanged)

public:
    /// Of which drives the reports are listed.
    enum Drive { AllDrives, Unit, Usb };
    Q_ENUM(Drive)

    /// What a row has; in QML the names of the roles stand for it.
    enum Role {
        NameRole = Qt::UserRole + 1,
        PathRole,
        FormatRole,
        SizeRole,
        TimeRole,
        CompressedRole,
        DriveRole,
        SyncedRole,
        ViewableRole,
        ReadableRole
    };
    Q_ENUM(Role)

    /// Newest first, by name from A to Z with numbers by their value, largest first, by format. What is equal is
    /// ordered by time.
    enum SortKey { ByTime, ByName, BySize, ByFormat };
    Q_ENUM(SortKey)

    explicit SavedReports(QObject* parent = nullptr);
    ~SavedReports() override;

    Report* report() const;
    void setReport(Report* report);
    QString folder() const;
    void setFolder(const QString& folder);
    Drive drive() const;
    void setDrive(Drive drive);
    int count() const;
    QString filter() const;
    void setFilter(const QString& filter);
    SortKey sortKey() const;
    void setSortKey(SortKey key);
    bool isReversed() const;
    void setReversed(bool reversed);
    int totalCount() const;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// Reads the list at once.
    Q_INVOKABLE void refresh();
    /// Opens a PDF report in the instrument's viewer. Where there is none, and any other report, with the program that
    /// the desktop has for it ("xdg-open"), unless the report is compressed. False if nothing shows it; the user is not
    /// notified of that.
    Q_INVOKABLE bool open(const QString& path);
    /// Copies the report to the USB drive, durably; asks before it replaces a file there. The tray notifies the user
    /// when the copy is safe. Does nothing for a report that is there.
    Q_INVOKABLE void copyToUsb(const QString& path);
    /// Asks whether the report may be deleted. After a yes its metadata record and its line in the list of reports that
    /// are not synced are removed too.
    Q_INVOKABLE void remove(const QString& path);
    /// Removes the report from the list of reports that are not synced, or adds it. False if that fails; the user is
    /// notified.
    Q_INVOKABLE bool setSynced(const QString& path, bool synced);
    /// The metadata record of the report, read from the disk: `type`, `format`, `timeStamp`, `originFilePath`, and
    /// `info` with the free pairs. Empty, with a line in the log, if the record cannot be read.
    Q_INVOKABLE QVariantMap record(const QString& path) const;
    /// The text of a report that is text, compressed or not, and at most its first MiB; markup is returned as it
    /// stands. Empty if the report cannot be read or has no text.
    Q_INVOKABLE QString readText(const QString& path) const;

Q_SIGNALS:
    void reportChanged();
    void folderChanged();
    void driveChanged();
    void countChanged();
    void filterChanged();
    void sortKeyChanged();
    void reversedChanged();
    void totalCountChanged();

private:
    friend class SavedReportsPrivate;

    const std::unique_ptr<SavedReportsPrivate> d;
};

} // namespace uiutils
