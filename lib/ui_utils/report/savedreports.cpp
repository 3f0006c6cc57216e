#include "report/savedreports.h"

#include "document/reportmetadata.h"
#include "report/savedreports_p.h"
#include "report/savedtext_p.h"
#include "report/saving/reportrecord_p.h"
#include "report/viewer_p.h"

#include <kiv/kivclientinterface.h>

#include <utility>

namespace uiutils {

SavedReports::SavedReports(QObject* parent)
    : QAbstractListModel(parent)
    , d(std::make_unique<SavedReportsPrivate>(this))
{
    if (const KIVClientInterface* client = KIVClientInterface::getBaseMgrClient())
        connect(client, &KIVClientInterface::itemsChanged, this, [this] { d->watchBaseManager(); });
    d->watchBaseManager();
}

SavedReports::~SavedReports() = default;

Report* SavedReports::report() const
{
    return d->report;
}

void SavedReports::setReport(Report* report)
{
    if (report == d->report)
        return;
    if (d->report)
        d->report->disconnect(this);
    d->report = report;
    if (report) {
        connect(report, &Report::reportFilesChanged, this, [this] { d->schedule(); });
        connect(report, &QObject::destroyed, this, [this] {
            d->schedule();
            Q_EMIT reportChanged();
        });
    }
    d->schedule();
    const QPointer<SavedReports> self(this);
    d->takeFolder();
    if (self)
        Q_EMIT reportChanged();
}

QString SavedReports::folder() const
{
    return d->folder;
}

void SavedReports::setFolder(const QString& folder)
{
    d->ownFolder = folder;
    d->schedule();
    d->takeFolder();
}

SavedReports::Drive SavedReports::drive() const
{
    return d->drive;
}

void SavedReports::setDrive(Drive drive)
{
    if (std::exchange(d->drive, drive) == drive)
        return;
    d->schedule();
    Q_EMIT driveChanged();
}

int SavedReports::count() const
{
    return d->rows.size();
}

QString SavedReports::filter() const
{
    return d->filter;
}

void SavedReports::setFilter(const QString& filter)
{
    if (std::exchange(d->filter, filter) != filter && d->rearrange())
        Q_EMIT filterChanged();
}

SavedReports::SortKey SavedReports::sortKey() const
{
    return d->sortKey;
}

void SavedReports::setSortKey(SortKey key)
{
    if (std::exchange(d->sortKey, key) != key && d->rearrange())
        Q_EMIT sortKeyChanged();
}

bool SavedReports::isReversed() const
{
    return d->isReversed;
}

void SavedReports::setReversed(bool reversed)
{
    if (std::exchange(d->isReversed, reversed) != reversed && d->rearrange())
        Q_EMIT reversedChanged();
}

int SavedReports::totalCount() const
{
    return d->all.size();
}

int SavedReports::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : d->rows.size();
}

QVariant SavedReports::data(const QModelIndex& index, int role) const
{
    const bool isRow = checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid);
    return isRow ? d->value(d->rows.at(index.row()), role) : QVariant();
}

QHash<int, QByteArray> SavedReports::roleNames() const
{
    return {{NameRole, "name"}, {PathRole, "path"}, {FormatRole, "format"}, {SizeRole, "size"}, {TimeRole, "time"},
            {CompressedRole, "compressed"}, {DriveRole, "drive"}, {SyncedRole, "synced"}, {ViewableRole, "viewable"},
            {ReadableRole, "readable"}};
}

void SavedReports::refresh()
{
    d->refresh();
}

bool SavedReports::open(const QString& path)
{
    if (!isForViewer(path) || !hasViewer())
        return isForDesktop(path) && openOnDesktop(path);
    if (d->report)
        d->report->showPDF(path);
    else
        startViewer(path, Report::tr("View Report"));
    return true;
}

void SavedReports::copyToUsb(const QString& path)
{
    d->actions.copyToUsb(path);
}

void SavedReports::remove(const QString& path)
{
    d->actions.remove(path);
}

bool SavedReports::setSynced(const QString& path, bool synced)
{
    d->schedule();
    return d->actions.setSynced(path, synced);
}

QVariantMap SavedReports::record(const QString& path) const
{
    ReportMetadata record;
    if (!readReportRecord(&record, path))
        return {};
    QVariantMap info;
    const QMap<QString, QString> pairs = record.info();
    for (auto it = pairs.cbegin(); it != pairs.cend(); ++it)
        info.insert(it.key(), it.value());
    return {{QStringLiteral("type"), record.type()}, {QStringLiteral("format"), record.format()},
            {QStringLiteral("timeStamp"), record.timeStamp()},
            {QStringLiteral("originFilePath"), record.originFilePath()}, {QStringLiteral("info"), info}};
}

QString SavedReports::readText(const QString& path) const
{
    return savedText(path);
}

} // namespace uiutils
