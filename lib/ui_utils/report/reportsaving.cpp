// The half of Report that makes contents and saves them.

#include "report/report.h"

#include "core/itemids.h"
#include "core/paths.h"
#include "report/gzip_p.h"
#include "report/jobreport_p.h"
#include "report/nosynclist_p.h"
#include "report/reportdestinations_p.h"
#include "report/reportfilewriter_p.h"
#include "report/reportformats_p.h"
#include "report/reportstate_p.h"
#include "report/savednotice_p.h"
#include "templ2xmlwriter/templatetoxmlwriter.h"
#include "writers/templatetohtmlwriter.h"
#include "writers/templatetopdfwriter.h"

#include <kiv/filesystemusage.h>
#include <kiv/kivclientinterface.h>
#include <kiv/kivnotificationmodelmanager.h>

#include <QFile>
#include <QProcess>
#include <QScopeGuard>
#include <QTemporaryDir>

#include <algorithm>
#include <utility>

using uiutils::changes;
using uiutils::onDisk;

// --- Contents ---

template<typename Writer>
void Report::handOnSwitches(Writer& writer) const
{
    writer.setAttribute(QStringLiteral("includeJobInfo"), m_includeJobInfo);
    writer.setAttribute(QStringLiteral("includeCustomerInfoTop"), m_includeCustomerInfo);
    writer.setAttribute(QStringLiteral("showHardwareRevs"), m_showHardwareRevs);
    writer.setAttribute(QStringLiteral("showSoftwareRevs"), m_showSoftwareRevs);
    writer.setAttribute(QStringLiteral("title"), getTitle());
    writer.setAttribute(QStringLiteral("logo"), QString(uiutils::paths::logo));
    writer.setAttribute(QStringLiteral("orientation"), getOrientation());
    for (auto it = m_writerAttributes.cbegin(); it != m_writerAttributes.cend(); ++it)
        writer.setAttribute(it.key(), it.value());
}

void Report::setHtmlWriterAttributes(TemplateToHtmlWriter& writer) const
{
    handOnSwitches(writer);
}

QString Report::generateTxtReport()
{
    return QString();
}

QString Report::generateJsonReport()
{
    return QString();
}

QString Report::generateXmlReport()
{
    return TemplateToXmlWriter(m_document, false, m_includeCustomerInfo, true).getXml();
}

QString Report::generateJobManagerReport()
{
    return TemplateToXmlWriter(m_document, true, m_includeCustomerInfo, true).getXml();
}

QString Report::generateHtmlReport()
{
    TemplateToHtmlWriter writer(m_document, nullptr);
    setHtmlWriterAttributes(writer);
    return writer.getHtml();
}

bool Report::hasCustomPDF()
{
    return false;
}

QByteArray Report::generatePDFReport()
{
    return generateDefaultPDFReport();
}

QByteArray Report::generateDefaultPDFReport()
{
    const QTemporaryDir folder;
    const QString place = folder.filePath(QStringLiteral("report") + uiutils::pdfSuffix);
    // A report of many rows is large: its items go as soon as they are printed, unless others print them, too.
    const auto dropItems = qScopeGuard([isNested = ReportPDF::isPrinting()] {
        if (!isNested)
            qDeleteAll(std::exchange(m_reportItems, {}));
    });
    TemplateToPdfWriter writer(m_document, &m_reportItems);
    handOnSwitches(writer);
    writer.setAttribute(QStringLiteral("subject"), getSubject());
    QString error;
    QFile file(place);
    if (folder.isValid() && writer.write(place, &error) && file.open(QIODevice::ReadOnly))
        return file.readAll();
    qDebug("The pages of the report could not be made: %s", qUtf8Printable(error));
    return QByteArray();
}

// --- Writing ---

bool Report::writeTxtReport(const QString& path, bool overwrite)
{
    return writeTextReport(path, generateTxtReport(), TXT_EXTENSION, overwrite);
}

bool Report::writeJsonReport(const QString& path, bool overwrite)
{
    const QString text = generateJsonReport();
    return writeTextReport(path, text.isNull() ? QStringLiteral("{ }") : text, JSON_EXTENSION, overwrite);
}

bool Report::writeHtmlReport(const QString& path, bool overwrite)
{
    return writeTextReport(path, generateHtmlReport(), HTML_EXTENSION, overwrite);
}

bool Report::writeXmlReport(const QString& path, bool overwrite)
{
    return writeTextReport(path, generateXmlReport(), XML_EXTENSION, overwrite);
}

bool Report::writePDFReport(const QString& path, bool overwrite)
{
    if (!mayWrite({path}, overwrite))
        return false;
    const QByteArray pages = generatePDFReport();
    if (!pages.isEmpty())
        return writeContents(path, pages);
    m_state->errors.sendNotificationWriteError(path);
    return false;
}

bool Report::writeTextReport(const QString& path, const QString& text, const QString&, bool overwrite)
{
    return mayWrite({path}, overwrite) && writeContents(path, text.toUtf8());
}

bool Report::writeContents(const QString& path, const QByteArray& contents)
{
    const uiutils::WrittenFile file = uiutils::writeReportFile(path, contents, m_isCompressionEnabled);
    if (!file.ok) {
        m_state->errors.sendNotificationWriteError(path);
        qDebug("The report %s was not written: %s", qUtf8Printable(path), qUtf8Printable(file.error));
        return false;
    }
    // The user has let go of a report of the name before it came to this.
    if (m_isCompressionEnabled)
        QFile::remove(onDisk(path));
    if (path.endsWith(PDF_EXTENSION))
        m_lastPdf = file.path;
    // Slots and hooks may delete the controller. The file is there all the same.
    const QPointer<Report> self(this);
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
    const auto* manager = KIVNotificationModelManager::instance();
    connect(manager, &KIVNotificationModelManager::notificationAccepted, this, &Report::overwriteAccepted,
            Qt::UniqueConnection);
    connect(manager, &KIVNotificationModelManager::notificationRejected, this, &Report::overwriteRejected,
            Qt::UniqueConnection);
    const QPointer<Report> self(this);
    m_state->gate.ask(taken);
    if (self)
        overwriteAsked(taken);
    return false;
}

void Report::overwriteAccepted(KIVNotification* notification)
{
    if (!m_state->gate.takeAnswered(notification).isEmpty())
        Q_EMIT reportOverwriteAccepted();
}

void Report::overwriteRejected(KIVNotification* notification)
{
    const QString path = m_state->gate.takeAnswered(notification);
    if (!path.isEmpty())
        overwriteDeclined(path);
}

// --- Saving ---

void Report::startPossibleSave() {}

bool Report::save(bool overwrite)
{
    // A slot that hears of a save's progress would otherwise start one within the other, and that one the next.
    if (m_isSaving)
        return false;
    const QPointer<Report> self(this);
    m_state->gate.withdraw();
    saveSettings();
    const QString name = chosenName();
    const auto fail = [&] {
        if (self)
            saveFailed(name);
        return false;
    };
    if (!alone([&] { return beginSave(name); }))
        return fail();
    if (!checkForOverwrite(name, getSuffixForReport(), overwrite))
        return false;
    QStringList written;
    if (!alone([&] { return writeAndRecord(name, overwrite, &written); }))
        return fail();
    // Files of all formats have the name in common.
    const QString saved = isAll() ? name : written.constFirst();
    saveSucceeded(written.constFirst());
    if (self)
        Q_EMIT reportGenerated(saved);
    return true;
}

/// False when the step fails, and when the controller has not survived it.
template<typename Step>
bool Report::alone(const Step& step)
{
    const QPointer<Report> self(this);
    m_isSaving = true;
    const bool isDone = step();
    if (!self)
        return false;
    m_isSaving = false;
    return isDone;
}

bool Report::beginSave(const QString& name)
{
    const QPointer<Report> self(this);
    saveStarted(name);
    if (self)
        keepName();
    if (self)
        takeIncludeJobInfo();
    return self && hasRoom();
}

QString Report::chosenName()
{
    const KivData* item = getSetting(uiutils::nameSetting);
    QString name = item ? item->getValue().toString() : QString();
    if (item && name.isEmpty())
        name = proposedFileName();
    return name.isEmpty() ? QStringLiteral("empty") : name;
}

void Report::keepName()
{
    KIVClientInterface* client = KIVClientInterface::getBaseMgrClient();
    if (keepsReportName() && client)
        client->invokeAction(uiutils::itemids::updateNameConfigs);
}

void Report::takeIncludeJobInfo()
{
    if (const KivData* item = getSetting(uiutils::jobInfoSetting))
        setIncludeJobInfo(item->getValue().toBool());
}

bool Report::hasRoom() const
{
    const QStringList folders = uiutils::ReportDestinations::current().foldersToCheck(m_baseDirectory);
    const QString message = tr("There is not enough space to save the report.");
    return std::all_of(folders.cbegin(), folders.cend(), [&](const QString& folder) {
        return FileSystemUsage::checkAndNotifyBeforeSave(onDisk(folder), message);
    });
}

bool Report::checkForOverwrite(const QString& name, const QString& suffix, bool overwrite)
{
    if (!suffix.isEmpty())
        return mayWrite({getSaveFilePath(name, suffix)}, overwrite);
    QStringList paths;
    const auto formats = uiutils::formatsToWrite(getFormat(), m_settings.value(uiutils::formatSetting));
    for (const uiutils::ReportFormat* format : formats)
        paths.append(getSaveFilePath(name, format->suffix));
    return mayWrite(paths, overwrite);
}

/// What a user keeps from the cloud stays from it also when another format could not be written.
bool Report::writeAndRecord(const QString& name, bool overwrite, QStringList* written)
{
    const QPointer<Report> self(this);
    const bool isComplete = writeFormats(name, overwrite, written);
    if (self)
        recordSync(*written);
    return isComplete;
}

bool Report::writeFormats(const QString& name, bool overwrite, QStringList* written)
{
    const QPointer<Report> self(this);
    prepareDocument();
    bool ok = true;
    const auto formats = self ? uiutils::formatsToWrite(getFormat(), m_settings.value(uiutils::formatSetting))
                              : QList<const uiutils::ReportFormat*>();
    for (const uiutils::ReportFormat* format : formats) {
        const QString path = getSaveFilePath(name, format->suffix);
        const bool isWritten = (this->*format->writer)(path, overwrite);
        if (!self)
            return false;
        ok = ok && isWritten;
        if (!isWritten)
            continue;
        written->append(m_isCompressionEnabled ? path + GZIP_EXTENSION : path);
        writeMetadata(written->constLast(), QLatin1String(format->label));
        if (!self)
            return false;
    }
    return ok && !written->isEmpty();
}

void Report::recordSync(const QStringList& paths)
{
    const KivData* item = getSetting(uiutils::syncSetting);
    if (!item)
        return;
    const QPointer<Report> self(this);
    const bool isSynced = item->getValue().toBool();
    (isSynced ? m_syncedReports : m_unsyncedReports) += paths;
    for (const QString& path : paths) {
        if (self && isSynced)
            removeReportFromNoSyncList(path);
        else if (self)
            addReportToNoSyncList(path);
    }
}

void Report::addReportToNoSyncList(const QString& filePath)
{
    writeNoSyncListToFile(uiutils::withReport(uiutils::noSyncList(), filePath));
}

void Report::removeReportFromNoSyncList(const QString& filePath)
{
    const QStringList former = uiutils::noSyncList();
    const QStringList now = uiutils::withoutReport(former, filePath);
    if (now != former)
        writeNoSyncListToFile(now);
}

void Report::writeNoSyncListToFile(const QStringList& noSync_fileList)
{
    uiutils::writeNoSyncList(noSync_fileList);
}

double Report::percentageFileSystemUsed(const QString& path)
{
    return FileSystemUsage::percentageUsed(onDisk(path));
}

// --- The job ---

bool Report::writeToJobManager()
{
    QString reason;
    const QPointer<Report> self(this);
    const bool attached = ensureValidJobData()
            && uiutils::attachToJob(generateJobManagerReport().toUtf8(), m_jobSchema, &reason);
    if (!self)
        return attached;
    if (attached) {
        updateJobTestMetadata();
        return true;
    }
    if (!reason.isEmpty())
        m_state->tell(tr("Job Manager"), reason);
    return false;
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
