#include "report/savedreportactions_p.h"

#include "base/paths_p.h"
#include "instrument/drives_p.h"
#include "report/reporttexts_p.h"
#include "report/saving/drivefile_p.h"
#include "report/saving/nosynclist_p.h"
#include "report/saving/reportrecord_p.h"

#include <kiv/kivnotification.h>

#include <QFile>
#include <QFileInfo>

#include <optional>
#include <utility>

namespace uiutils {

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

void tellCopied(const QString& path)
{
    // The tray keeps a copy.
    KIVNotification notice;
    notice.setLongLabel(ReportTexts::tr("Report Copied"));
    notice.setMsg(instrument::shownPath(path));
    notice.notifyTray();
}

} // namespace

SavedReportActions::SavedReportActions(std::function<void()> onChange)
    : m_onChange(std::move(onChange))
{
    QObject::connect(&m_removal, &FileUtils::accepted, &m_removal,
            [this](const KIVNotification* question) { removeNow(question->value(fileNameKey).toString()); });
    QObject::connect(&m_copying, &FileUtils::accepted, &m_copying,
            [this](const KIVNotification* question) { copyNow(question->value(fileNameKey).toString(), true); });
}

// --- Deleting ---

void SavedReportActions::remove(const QString& path)
{
    m_removal.sendNotificationDeleteRequest(onOneLine(path), {{fileNameKey, path}});
}

void SavedReportActions::removeNow(const QString& path)
{
    const auto onChange = m_onChange;
    // Files that left with their drive are not deleted.
    const bool isGone = instrument::isDriveThere(path) && (QFile::remove(onDisk(path)) || !isThere(path));
    QString error;
    if (isGone)
        removeReportRecord(path);
    // The list accepts no path with a line feed.
    const bool isListed = isGone && !path.contains(QLatin1Char('\n')) && !removeFromNoSyncList({path}, &error);
    if (isListed)
        m_dialogs.notifySyncError({path}, true, error);
    else if (!isGone)
        m_errors.sendNotificationWriteError(path);
    onChange();
}

// --- Copying ---

void SavedReportActions::copyToUsb(const QString& path)
{
    if (path != instrument::usbPath(path))
        copyNow(path, false);
}

void SavedReportActions::copyNow(const QString& path, bool mayReplace)
{
    const QString target = instrument::usbPath(path);
    // Without a drive the folder and its space would be the unit's.
    const bool hasDrive = instrument::isDriveThere(target);
    if (hasDrive && !mayReplace && isThere(target)) {
        m_copying.sendNotificationOverwriteRequest(target, {{fileNameKey, path}});
        return;
    }
    QString error;
    const std::optional<QByteArray> contents = readWholeFile(path, &error);
    if (!contents) {
        m_errors.sendNotificationReadError(path);
        return;
    }
    if (hasDrive && !m_errors.checkDriveSpaceForFile(contents->size(), target))
        return;
    const NewFile result = writeToDrive(target, *contents, mayReplace, &error);
    if (result == NewFile::Taken)
        m_copying.sendNotificationOverwriteRequest(target, {{fileNameKey, path}});
    if (result == NewFile::Failed)
        m_dialogs.notifyWriteError(target, error);
    if (result != NewFile::Written)
        return;
    const auto onChange = m_onChange;
    tellCopied(target);
    onChange();
}

// --- The cloud ---

bool SavedReportActions::setSynced(const QString& path, bool isSynced)
{
    QString error;
    if (isSynced ? removeFromNoSyncList({path}, &error) : addToNoSyncList({path}, &error))
        return true;
    m_dialogs.notifySyncError({path}, isSynced, error);
    return false;
}

} // namespace uiutils
