// The part of Report that hands on what is saved: to the stick, the cloud, the file browser, the job, the viewer.

#include "report/report.h"

#include "base/paths.h"
#include "instrument/drives_p.h"
#include "instrument/job_p.h"
#include "report/jobreport_p.h"
#include "report/nosynclist_p.h"
#include "report/reportfilewriter_p.h"
#include "report/reportrecord_p.h"
#include "report/reportstate_p.h"

#include <kiv/filesystemusage.h>

#include <QDir>
#include <QPointer>
#include <QProcess>

using uiutils::onDisk;

// --- The stick ---

void Report::saveToUsb(const QString& name, const QString& suffix)
{
    copyToUsb(getSaveFilePath(name, suffix) + (m_isCompressionEnabled ? GZIP_EXTENSION : QString()), true);
}

bool Report::copyToUsb(const QString& saved, bool overwrite)
{
    const QString copy = uiutils::instrument::usbPath(saved);
    // What is saved to the stick is its own copy.
    const bool mayReplace = overwrite || QDir::cleanPath(saved) == copy;
    QString error;
    if (uiutils::copyReportFile(saved, copy, mayReplace, &error))
        return true;
    m_state->tellWriteError(copy, error);
    return false;
}

double Report::percentageFileSystemUsed(const QString& path)
{
    return FileSystemUsage::percentageUsed(onDisk(path));
}

// --- The cloud ---

void Report::addReportToNoSyncList(const QString& filePath)
{
    recordSync({filePath}, false);
}

void Report::removeReportFromNoSyncList(const QString& filePath)
{
    recordSync({filePath}, true);
}

void Report::recordSync(const QStringList& paths, bool isSynced)
{
    const QPointer<Report> self(this);
    QString error;
    const bool isRecorded
            = isSynced ? uiutils::removeFromNoSyncList(paths, &error) : uiutils::addToNoSyncList(paths, &error);
    if (isRecorded || !self)
        return;
    QStringList shown;
    for (const QString& path : paths)
        shown += m_state->shown(path);
    const QString consequence = isSynced ? tr("%1 is still on the list of reports that are not synced.")
                                         : tr("The cloud may take %1, although it is not to be synced.");
    tellSyncError(consequence.arg(shown.join(QLatin1String(", "))), error);
}

/// Each path is in one of the lists, once.
void Report::noteSaved(const QStringList& files, bool isSynced)
{
    QStringList& list = isSynced ? m_syncedReports : m_unsyncedReports;
    QStringList& other = isSynced ? m_unsyncedReports : m_syncedReports;
    for (const QString& file : files) {
        other.removeAll(file);
        list.removeAll(file);
        list += file;
    }
}

void Report::writeNoSyncListToFile(const QStringList& noSync_fileList)
{
    QString error;
    if (!uiutils::replaceNoSyncList(noSync_fileList, &error))
        tellSyncError(tr("The list of reports that are not synced was not changed."), error);
}

void Report::tellSyncError(const QString& consequence, const QString& reason)
{
    qWarning("%s", qUtf8Printable(reason));
    m_state->tellSyncError(tr("Sync"), consequence + QLatin1Char(' ') + reason);
}

// --- The file browser ---

void Report::writeMetadata(const QString& path, const QString& format)
{
    uiutils::describeReport(&m_state->metadata, path, format, QDateTime::currentDateTime());
    addWorkOrderMetaDataInfo();
    if (uiutils::instrument::isJobActive() && ensureValidJobData())
        updateJobTestMetadata();
    // Where a stick was, it would be the unit's.
    if (uiutils::instrument::isDriveThere(path))
        m_state->metadata.saveMetadataToFile();
    else
        qWarning("The record of %s was not written, because the drive is not there", qUtf8Printable(path));
}

ReportMetadata& Report::metadata()
{
    return m_state->metadata;
}

void Report::addWorkOrderMetaDataInfo()
{
    const QMap<QString, QString> order = uiutils::instrument::workOrder();
    for (auto it = order.cbegin(); it != order.cend(); ++it)
        m_state->metadata.setInfo(it.key(), it.value());
}

bool Report::ensureValidJobData()
{
    return uiutils::instrument::hasJobId();
}

void Report::updateJobTestMetadata()
{
    const QString type = getCdmTestType();
    uiutils::addJobTest(&m_state->metadata, type, getCdmTestLabel());
}

// --- The job ---

bool Report::writeToJobManager()
{
    QString reason;
    const QPointer<Report> self(this);
    bool isAttached = false;
    if (uiutils::instrument::isJobActive() && !ensureValidJobData())
        reason = tr("The data of the job is not complete: it has no ID");
    else
        isAttached = uiutils::attachToJob(generateJobManagerReport().toUtf8(), m_jobSchema, &reason);
    if (self && !isAttached)
        m_state->tell(tr("Job Manager"), reason);
    return isAttached;
}

// --- The viewer ---

void Report::showPDF(const QString& path)
{
    const QString shown = path.isEmpty() ? m_lastPdf : path;
    const QString windowTitle = path.isEmpty() ? getTitle() : tr("View Report");
    if (!shown.endsWith(PDF_EXTENSION) && !shown.endsWith(PDF_EXTENSION + GZIP_EXTENSION))
        return;
    m_lastPdf = shown;
    QStringList arguments = QStringLiteral("-plugin EvdevTouch:/dev/input/event1 --dpy 85 -s").split(QLatin1Char(' '));
    arguments << onDisk(shown) << QStringLiteral("-t") << windowTitle;
    QProcess::startDetached(onDisk(uiutils::paths::pdfViewer), arguments, onDisk(uiutils::paths::pdfViewerFolder));
}
