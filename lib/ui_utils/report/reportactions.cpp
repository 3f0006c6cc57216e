// The part of Report that acts: makes contents, writes, saves, attaches and shows.

#include "base/paths_p.h"
#include "instrument/drives_p.h"
#include "instrument/job_p.h"
#include "report/jobreport_p.h"
#include "report/report.h"
#include "report/report_p.h"
#include "report/reporthooks_p.h"
#include "report/saving/gzip_p.h"
#include "report/saving/nosynclist_p.h"
#include "report/saving/reportrecord_p.h"
#include "report/saving/saveplan_p.h"
#include "report/viewer_p.h"
#include "templ2xmlwriter/templatetoxmlwriter.h"
#include "writers/html/templatetohtmlwriter.h"
#include "writers/html/templatetopdfwriter.h"

#include <kiv/filesystemusage.h>

#include <QPointer>
#include <QScopeGuard>

using uiutils::onDisk;

// --- Contents ---

ReportTemplate& Report::document()
{
    return d->document;
}

const ReportTemplate& Report::document() const
{
    return d->document;
}

template<typename Writer> void uiutils::ReportPrivate::handOnSwitches(Writer& writer) const
{
    writer.setAttribute(QStringLiteral("includeJobInfo"), includeJobInfo);
    writer.setAttribute(QStringLiteral("includeCustomerInfoTop"), includeCustomerInfo);
    writer.setAttribute(QStringLiteral("showHardwareRevs"), showHardwareRevs);
    writer.setAttribute(QStringLiteral("showSoftwareRevs"), showSoftwareRevs);
    writer.setAttribute(QStringLiteral("title"), q->getTitle());
    writer.setAttribute(QStringLiteral("logo"), QString(uiutils::paths::logo));
    writer.setAttribute(QStringLiteral("orientation"), q->getOrientation());
    for (auto it = writerAttributes.cbegin(); it != writerAttributes.cend(); ++it)
        writer.setAttribute(it.key(), it.value());
}

void Report::setHtmlWriterAttributes(TemplateToHtmlWriter& writer) const
{
    d->handOnSwitches(writer);
    writer.setBodyAttributes(writer.defaultBodyAttributes());
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
    return TemplateToXmlWriter(d->document, false, d->includeCustomerInfo, true).getXml();
}

QString Report::generateJobManagerReport()
{
    return TemplateToXmlWriter(d->document, true, d->includeCustomerInfo, true).getXml();
}

QString Report::generateHtmlReport()
{
    TemplateToHtmlWriter writer(d->document, &m_reportItems);
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
    // A report of many rows is large: its items are deleted as soon as they are printed, unless another print uses them
    // too.
    const auto dropItems = qScopeGuard([isNested = ReportPDF::isPrinting()] {
        if (!isNested)
            uiutils::deleteItemsOfPasses(m_reportItems);
    });
    TemplateToPdfWriter writer(d->document, &m_reportItems);
    d->handOnSwitches(writer);
    writer.setAttribute(QStringLiteral("subject"), getSubject());
    const auto saving = d->saving;
    // The controller may have been deleted when the next page asks.
    ReportPDF& pages = writer.pages();
    connect(&pages, &ReportPDF::progressChanged, &pages, [saving, &pages](int page, int pageCount) {
        if (!saving->goesOn(pageCount > 0 ? double(page) / pageCount : 0))
            pages.cancel();
    });
    QString error;
    QByteArray file = saving->withProgress([&] { return writer.toPdf(&error); });
    if (!error.isEmpty())
        qDebug("The pages of the report could not be made: %s", qUtf8Printable(error));
    return file;
}

std::unique_ptr<TemplateToPdfWriter> Report::makePdfWriter(QList<ReportItem*>* items)
{
    if (isSaving() || hasCustomPDF())
        return nullptr;
    uiutils::ReportHooks hooks(this);
    hooks.takeJobInfo();
    hooks.prepareDocument();
    if (!hooks.isAlive())
        return nullptr;
    auto writer = std::make_unique<TemplateToPdfWriter>(d->document, items);
    d->handOnSwitches(*writer);
    writer->setAttribute(QStringLiteral("subject"), getSubject());
    return writer;
}

void Report::setWriterAttribute(const QString& name, const QVariant& value)
{
    d->writerAttributes.insert(name, value);
}

// --- Files ---

bool Report::writeTxtReport(const QString& path, bool overwrite)
{
    return d->writeGenerated(path, &Report::generateTxtReport, TXT_EXTENSION, overwrite);
}

bool Report::writeJsonReport(const QString& path, bool overwrite)
{
    return d->writeGenerated(path, &Report::generateJsonReport, JSON_EXTENSION, overwrite);
}

bool Report::writeHtmlReport(const QString& path, bool overwrite)
{
    return d->writeGenerated(path, &Report::generateHtmlReport, HTML_EXTENSION, overwrite);
}

bool Report::writeXmlReport(const QString& path, bool overwrite)
{
    return d->writeGenerated(path, &Report::generateXmlReport, XML_EXTENSION, overwrite);
}

bool Report::writePDFReport(const QString& path, bool overwrite)
{
    return d->writeMade(
            path, [this] { return generatePDFReport(); }, QStringLiteral("there are no pages"), overwrite);
}

bool Report::writeTextReport(const QString& path, const QString& text, const QString&, bool overwrite)
{
    const auto saving = d->saving;
    return saving->mayWrite({path}, overwrite) && saving->write(path, text.toUtf8(), overwrite);
}

bool Report::isCompressionEnabled() const
{
    return d->isCompressionEnabled;
}

void Report::setCompressionEnabled(bool enabled)
{
    d->isCompressionEnabled = enabled;
    d->tellProblems();
}

bool Report::compressFile(const QString& path)
{
    return uiutils::compressFile(path);
}

bool Report::uncompressFile(const QString& path)
{
    return uiutils::uncompressFile(path);
}

// --- Saving ---

void Report::startPossibleSave() { }

bool Report::save(bool overwrite)
{
    return uiutils::save(d->saving, overwrite);
}

bool Report::checkForOverwrite(const QString& name, const QString& suffix, bool overwrite)
{
    const auto saving = d->saving;
    const bool isCopied = saving->destinations().copiesToUsb();
    uiutils::SavePlan plan;
    if (suffix.isEmpty()) {
        const uiutils::PathOf pathOf
                = [this](const QString& wanted, const QString& end) { return getSaveFilePath(wanted, end); };
        const uiutils::FormatChoice choice = uiutils::formatChoice(d->settings.value(uiutils::formatSetting));
        plan.files = uiutils::plannedFiles(name, choice.formats, isCopied, pathOf);
    } else {
        plan.files += uiutils::plannedFile(getSaveFilePath(name, suffix), nullptr, isCopied);
    }
    return saving->mayWrite(plan.paths(uiutils::instrument::isDriveThere(uiutils::paths::usb)), overwrite);
}

void Report::overwriteAccepted(KIVNotification* notification)
{
    const auto saving = d->saving;
    saving->accept(notification);
}

void Report::overwriteRejected(KIVNotification* notification)
{
    const auto saving = d->saving;
    saving->reject(notification);
}

bool Report::isSaving() const
{
    return d->saving->isBusy && d->saving->progress.isRunning();
}

double Report::getProgress() const
{
    return d->saving->progress.value();
}

void Report::cancel()
{
    d->saving->progress.cancel();
}

bool Report::isInteractive() const
{
    return d->isInteractive;
}

void Report::setInteractive(bool interactive)
{
    d->isInteractive = interactive;
}

// --- The USB drive, the cloud ---

void Report::saveToUsb(const QString& name, const QString& suffix)
{
    const auto saving = d->saving;
    const QString path = getSaveFilePath(name, suffix);
    saving->copyToUsb(d->isCompressionEnabled ? path + GZIP_EXTENSION : path, true);
}

double Report::percentageFileSystemUsed(const QString& path)
{
    return FileSystemUsage::percentageUsed(onDisk(path));
}

void Report::addReportToNoSyncList(const QString& filePath)
{
    const auto saving = d->saving;
    saving->updateSyncList({filePath}, false);
}

void Report::removeReportFromNoSyncList(const QString& filePath)
{
    const auto saving = d->saving;
    saving->updateSyncList({filePath}, true);
}

void Report::writeNoSyncListToFile(const QStringList& noSync_fileList)
{
    const auto saving = d->saving;
    QString error;
    if (!uiutils::replaceNoSyncList(noSync_fileList, &error))
        saving->dialogs.notifySyncError(tr("The list of reports that are not synced was not changed."), error);
}

QStringList Report::syncedReports() const
{
    return d->syncedReports;
}

QStringList Report::unsyncedReports() const
{
    return d->unsyncedReports;
}

// --- The file browser ---

void Report::writeMetadata(const QString& path, const QString& format)
{
    uiutils::describeReport(&d->metadata, path, format, QDateTime::currentDateTime());
    addWorkOrderMetaDataInfo();
    if (uiutils::instrument::jobFacts().isActive && ensureValidJobData())
        updateJobTestMetadata();
    // In the folder that remains of a removed USB drive, the record would be on the unit.
    if (uiutils::instrument::isDriveThere(path))
        d->metadata.saveMetadataToFile();
    else
        qWarning("The record of %s was not written, because the drive is not there", qUtf8Printable(path));
}

ReportMetadata& Report::metadata()
{
    return d->metadata;
}

void Report::addWorkOrderMetaDataInfo()
{
    const QMap<QString, QString> order = uiutils::instrument::jobFacts().workOrder;
    for (auto it = order.cbegin(); it != order.cend(); ++it)
        d->metadata.setInfo(it.key(), it.value());
}

bool Report::ensureValidJobData()
{
    return uiutils::instrument::jobFacts().hasId();
}

void Report::updateJobTestMetadata()
{
    const QString type = getCdmTestType();
    uiutils::addJobTest(&d->metadata, type, getCdmTestLabel());
}

// --- The job ---

bool Report::writeToJobManager()
{
    QString reason;
    const auto saving = d->saving;
    const QPointer<Report> self(this);
    bool isAttached = false;
    if (uiutils::instrument::isJobActive() && !ensureValidJobData())
        reason = tr("The data of the job is not complete: it has no ID");
    else
        isAttached = uiutils::attachToJob(generateJobManagerReport().toUtf8(), d->jobSchema, &reason);
    if (self && !isAttached)
        saving->dialogs.notify(tr("Job Manager"), reason);
    return isAttached;
}

// --- The viewer ---

void Report::showPDF(const QString& path)
{
    const QString shown = path.isEmpty() ? d->lastPdf : path;
    const QString windowTitle = path.isEmpty() ? getTitle() : tr("View Report");
    if (!uiutils::isForViewer(shown))
        return;
    d->lastPdf = shown;
    uiutils::startViewer(shown, windowTitle);
}

// --- Hooks ---

void Report::settingsLoaded() { }
void Report::saveStarted(const QString&) { }
void Report::prepareDocument() { }
void Report::reportWritten(const QString&) { }
void Report::overwriteAsked(const QString&) { }
void Report::overwriteDeclined(const QString&) { }
void Report::saveSucceeded(const QString&) { }
void Report::saveFailed(const QString&) { }
bool Report::keepsReportName()
{
    return true;
}
