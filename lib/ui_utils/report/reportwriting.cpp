// The part of Report that writes one file: the question before, the file, the notice behind.

#include "report/report.h"

#include "base/paths.h"
#include "instrument/drives_p.h"
#include "report/gzip_p.h"
#include "report/reportfilewriter_p.h"
#include "report/reportformats_p.h"
#include "report/reportrecord_p.h"
#include "report/reportstate_p.h"
#include "report/savednotice_p.h"

#include <kiv/kivnotificationmodelmanager.h>

#include <QCoreApplication>
#include <QFile>
#include <QPointer>

using uiutils::changes;
using uiutils::onDisk;

bool Report::writeTxtReport(const QString& path, bool overwrite)
{
    return writeGenerated(path, &Report::generateTxtReport, TXT_EXTENSION, overwrite);
}

bool Report::writeJsonReport(const QString& path, bool overwrite)
{
    return writeGenerated(path, &Report::generateJsonReport, JSON_EXTENSION, overwrite);
}

bool Report::writeHtmlReport(const QString& path, bool overwrite)
{
    return writeGenerated(path, &Report::generateHtmlReport, HTML_EXTENSION, overwrite);
}

bool Report::writeXmlReport(const QString& path, bool overwrite)
{
    return writeGenerated(path, &Report::generateXmlReport, XML_EXTENSION, overwrite);
}

/// A long text takes time to make, in which the controller may go.
bool Report::writeGenerated(const QString& path, QString (Report::*generate)(), const QString& suffix, bool overwrite)
{
    const QPointer<Report> self(this);
    QString text = (this->*generate)();
    if (text.isNull() && suffix == JSON_EXTENSION)
        text = QStringLiteral("{ }");
    return self && writeTextReport(path, text, suffix, overwrite);
}

bool Report::writePDFReport(const QString& path, bool overwrite)
{
    if (!mayWrite({path}, overwrite))
        return false;
    const QPointer<Report> self(this);
    const bool isAlone = !m_state->progress.isRunning();
    if (isAlone)
        m_state->progress.begin(1);
    const QByteArray pages = generatePDFReport();
    if (!self)
        return false;
    if (isAlone)
        m_state->progress.end();
    // A report of the name may have come while the pages were made, with a stick.
    if (!pages.isEmpty())
        return mayWrite({path}, overwrite) && writeContents(path, pages, overwrite);
    if (!m_state->progress.isCancelled())
        m_state->tellWriteError(path, QStringLiteral("there are no pages"));
    return false;
}

bool Report::writeTextReport(const QString& path, const QString& text, const QString&, bool overwrite)
{
    return mayWrite({path}, overwrite) && writeContents(path, text.toUtf8(), overwrite);
}

bool Report::writeContents(const QString& path, const QByteArray& contents, bool overwrite)
{
    const uiutils::WrittenFile file = uiutils::writeReportFile(path, contents, m_isCompressionEnabled, overwrite);
    // Another process may have saved a report of the name meanwhile.
    if (file.isTaken && !mayWrite({path}, overwrite))
        return false;
    // Slots and hooks may delete the controller. The file is there all the same.
    const QPointer<Report> self(this);
    if (!file.ok) {
        const bool isStray = !file.path.isEmpty();
        if (isStray)
            m_state->strays += file.path;
        m_state->tellWriteError(path, file.error);
        if (self && isStray)
            Q_EMIT reportFilesChanged();
        return false;
    }
    // The user has let go of a report of the name before it came to this.
    if (m_isCompressionEnabled && overwrite && (QFile::remove(onDisk(path)) || !QFile::exists(onDisk(path))))
        uiutils::removeReportRecord(path);
    m_state->takeUpAgreement(path);
    if (path.endsWith(PDF_EXTENSION))
        m_lastPdf = file.path;
    const bool notifiesTray = m_notifiesTray;
    if (path.endsWith(XML_EXTENSION) && changes(m_lastSavedXml, file.path))
        Q_EMIT lastSavedXMLChanged();
    if (self)
        reportWritten(file.path);
    if (self)
        emitEach({&Report::reportFilesChanged, &Report::saveLocationChanged});
    if (self ? m_notifiesTray : notifiesTray)
        uiutils::postSavedNotice(file.path);
    return true;
}

bool Report::compressFile(const QString& path)
{
    return uiutils::compressFile(path);
}

bool Report::uncompressFile(const QString& path)
{
    return uiutils::uncompressFile(path);
}

// --- The question ---

bool Report::mayWrite(const QStringList& paths, bool overwrite)
{
    const QString taken = overwrite ? QString() : uiutils::OverwriteGate::firstTaken(paths, m_isCompressionEnabled);
    if (taken.isEmpty())
        return true;
    ask(taken, paths);
    return false;
}

/// Whoever answers yes agrees to `paths` and to what the save that runs has looked at before.
void Report::ask(const QString& taken, const QStringList& paths)
{
    const auto* manager = KIVNotificationModelManager::instance();
    connect(manager, &KIVNotificationModelManager::notificationAccepted, this, &Report::overwriteAccepted,
            Qt::UniqueConnection);
    connect(manager, &KIVNotificationModelManager::notificationRejected, this, &Report::overwriteRejected,
            Qt::UniqueConnection);
    const QPointer<Report> self(this);
    m_state->asked = {m_state->destinations(), m_state->checkedPaths + paths};
    m_state->gate.ask(taken);
    if (self)
        overwriteAsked(taken);
}

void Report::overwriteAccepted(KIVNotification* notification)
{
    if (m_state->gate.takeAnswered(notification).isEmpty())
        return;
    m_state->agreed = m_state->asked;
    Q_EMIT reportOverwriteAccepted();
}

void Report::overwriteRejected(KIVNotification* notification)
{
    const QString path = m_state->gate.takeAnswered(notification);
    if (!path.isEmpty())
        overwriteDeclined(path);
}

bool Report::checkForOverwrite(const QString& name, const QString& suffix, bool overwrite)
{
    const uiutils::ReportFormats formats
            = uiutils::formatsToWrite(getFormat(), m_settings.value(uiutils::formatSetting));
    QStringList suffixes(suffix);
    if (suffix.isEmpty()) {
        suffixes.clear();
        for (const uiutils::ReportFormat* format : formats)
            suffixes += format->suffix;
    }
    return mayWrite(targets(name, suffixes), overwrite);
}

/// Where files of the name go, and on a stick that is there the copies of them.
QStringList Report::targets(const QString& name, const QStringList& suffixes)
{
    const bool hasCopies
            = m_state->destinations().copiesToUsb() && uiutils::instrument::isDriveThere(uiutils::paths::usb);
    QStringList paths;
    for (const QString& suffix : suffixes) {
        paths += getSaveFilePath(name, suffix);
        if (hasCopies)
            paths += uiutils::instrument::usbPath(paths.constLast());
    }
    return paths;
}

// --- Progress ---

bool Report::isSaving() const
{
    return m_isSaving && m_state->progress.isRunning();
}

double Report::getProgress() const
{
    return m_state->progress.value();
}

void Report::cancel()
{
    m_state->progress.cancel();
}

bool Report::goesOn(double share)
{
    return tellProgress(m_state->progress.advance(share));
}

/// False when the save is cancelled, and when a slot has deleted the controller.
bool Report::tellProgress(bool hasChanged)
{
    const QPointer<Report> self(this);
    if (hasChanged)
        Q_EMIT progressChanged();
    if (self && m_isInteractive && m_isSaving && m_state->progress.isPageDue())
        QCoreApplication::processEvents();
    return self && !m_state->progress.isCancelled();
}
