#include "savedreportactions.h"

#include "base/paths_p.h"
#include "instrument/drives_p.h"
#include "report/reportlisting_p.h"
#include "report/saving/drivefile_p.h"
#include "report/saving/reportrecord_p.h"

#include <kiv/kivnotification.h>

#include <QFile>
#include <QFileInfo>

#include <optional>

namespace uiutils::demo {

namespace {

const QString fileNameKey = QStringLiteral("Filename");

/// Also true for a broken link.
bool isThere(const QString& path)
{
    const QFileInfo file(onDisk(path));
    return file.exists() || file.isSymLink();
}

/// A line feed in a file's name does not separate two files, as it would in the question.
QString onOneLine(QString path)
{
    return path.replace(QLatin1Char('\n'), QLatin1Char(' '));
}

void tellCopied(const QString& shownPath)
{
    // The tray keeps a copy.
    KIVNotification notice;
    notice.setLongLabel(SavedReportActions::tr("Report Copied"));
    notice.setMsg(shownPath);
    notice.notifyTray();
}

} // namespace

SavedReportActions::SavedReportActions(QObject* parent)
    : QObject(parent)
{
    connect(&m_removal, &FileUtils::accepted, this,
            [this](const KIVNotification* question) { removeNow(question->value(fileNameKey).toString()); });
    connect(&m_copying, &FileUtils::accepted, this,
            [this](const KIVNotification* question) { copyNow(question->value(fileNameKey).toString()); });
}

void SavedReportActions::setReport(LoopbackReport* report)
{
    if (report == m_report)
        return;
    m_report = report;
    Q_EMIT reportChanged();
}

bool SavedReportActions::hasViewer() const
{
    return QFileInfo(onDisk(paths::pdfViewer)).isExecutable();
}

QVariantList SavedReportActions::reportsInUnit()
{
    return m_report ? m_unit.files(m_report->getReportFilePath()) : QVariantList();
}

QVariantList SavedReportActions::reportsOnUsb() const
{
    // Without a drive the folder would be the unit's.
    return instrument::isDriveThere(paths::usb) ? reportFiles(paths::usb) : QVariantList();
}

void SavedReportActions::remove(const QString& path)
{
    m_removal.sendNotificationDeleteRequest(onOneLine(path), {{fileNameKey, path}});
}

void SavedReportActions::removeNow(const QString& path)
{
    // Files that left with their drive are not deleted.
    const bool isGone = instrument::isDriveThere(path) && (QFile::remove(onDisk(path)) || !isThere(path));
    if (isGone)
        forget(path);
    else
        m_removal.sendNotificationWriteError(path);
    if (m_report)
        m_report->tellFilesChanged();
}

void SavedReportActions::forget(const QString& path)
{
    removeReportRecord(path);
    // The list accepts no path with a line feed.
    if (!m_report || path.contains(QLatin1Char('\n')))
        return;
    m_report->removeReportFromNoSyncList(path);
}

void SavedReportActions::copyToUsb(const QString& path)
{
    const QString target = instrument::usbPath(path);
    // Without a drive the folder would be the unit's.
    if (instrument::isDriveThere(target) && isThere(target))
        m_copying.sendNotificationOverwriteRequest(target, {{fileNameKey, path}});
    else
        copyNow(path);
}

void SavedReportActions::copyNow(const QString& path)
{
    const QString target = instrument::usbPath(path);
    QString error;
    const std::optional<QByteArray> contents = readWholeFile(path, &error);
    if (!contents) {
        m_copying.sendNotificationReadError(path);
        return;
    }
    // Without a drive the space would be the unit's.
    if (instrument::isDriveThere(target) && !m_copying.checkDriveSpaceForFile(contents->size(), target))
        return;
    if (writeToDrive(target, *contents, true, &error) == NewFile::Written) {
        tellCopied(m_copying.getSanitizedPathName(target));
        return;
    }
    qWarning("The copy %s was not written: %s", qUtf8Printable(target), qUtf8Printable(error));
    m_copying.sendNotificationWriteError(target);
}

} // namespace uiutils::demo
