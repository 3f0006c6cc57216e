#include "report/report.h"

#include "base/paths_p.h"
#include "core/itemids_p.h"
#include "instrument/drives_p.h"
#include "instrument/job_p.h"
#include "report/report_p.h"
#include "report/reportdestinations_p.h"
#include "report/reportformats_p.h"
#include "writers/pages/reportitem.h"

#include <kiv/kivclientinterface.h>
#include <kiv/kivclientitem.h>

#include <QTimer>

using uiutils::changes;

namespace {

/// Milliseconds in which the page can set its folder.
constexpr int settingsDelay = 100;

} // namespace

const QString Report::PDF_EXTENSION = uiutils::pdfSuffix;
const QString Report::XML_EXTENSION = uiutils::xmlSuffix;
const QString Report::HTML_EXTENSION = uiutils::htmlSuffix;
const QString Report::TXT_EXTENSION = uiutils::textSuffix;
const QString Report::JSON_EXTENSION = uiutils::jsonSuffix;
const QString Report::SOR_EXTENSION = QStringLiteral(".sor");
const QString Report::GZIP_EXTENSION = uiutils::gzipSuffix;
QList<ReportItem*>& Report::m_reportItems = uiutils::sharedReportItems();

Report::Report(QObject* parent)
    : QObject(parent)
    , d(std::make_unique<uiutils::ReportPrivate>(this))
{
    d->watchServices();
    d->createSettings();
    QTimer::singleShot(settingsDelay, this, &Report::slotCreateSettings);
    for (const uiutils::FormatInfo& format : uiutils::allReportFormats())
        setFormatApplicable(format.value, format.isAlwaysOffered);
    if (KIVClientInterface* client = KIVClientInterface::getBaseMgrClient())
        client->setItem(uiutils::itemids::customDefaultName, QString());
    d->workflowClient = KIVClientInterface::getSessionBusClient(uiutils::itemids::workflowManager);
}

Report::~Report()
{
    d->saving->close();
}

// --- Services ---

void Report::slotValueChanged()
{
    const auto* item = qobject_cast<KIVClientItem*>(sender());
    if (item && item->getId().contains(uiutils::itemids::jobActiveWord))
        d->emitEach({&Report::canWriteToJobManagerChanged, &Report::jobSummaryChanged});
    else
        Q_EMIT jobSummaryChanged();
}

// --- Properties ---

QString Report::getTemplatePath() const
{
    return d->templatePath;
}

void Report::setTemplatePath(const QString& path)
{
    const QString folder = getFolder();
    const QString location = getSaveLocation();
    if (!d->readTemplate(path))
        return;
    const bool isOtherFolder = folder != getFolder();
    const bool isOtherLocation = location != getSaveLocation();
    const QPointer<Report> self(this);
    const bool areLoaded = d->loadSettingsOfNewFolder();
    if (!self
            || !d->emitEach({&Report::templatePathChanged, &Report::tagChanged, &Report::orientationChanged,
                    &Report::titleChanged, &Report::subjectChanged, &Report::reportFilesChanged,
                    &Report::canWriteToJobManagerChanged, &Report::canWriteToFileChanged}))
        return;
    if (isOtherFolder && !d->emitEach({&Report::folderChanged}))
        return;
    if (isOtherLocation && !d->emitEach({&Report::saveLocationChanged}))
        return;
    if (areLoaded)
        settingsLoaded();
}

QString Report::getBaseDirectory() const
{
    return d->baseDirectory;
}

void Report::setBaseDirectory(const QString& directory)
{
    // With a slash appended, an empty folder would be the top of the file system.
    if (changes(d->baseDirectory, directory.isEmpty() ? QString(uiutils::paths::reports) : directory))
        d->tellLocation();
}

QString Report::getTag() const
{
    return d->tag.isEmpty() ? d->document.getTag() : d->tag;
}

void Report::setTag(const QString& tag)
{
    const QString folder = getFolder();
    if (!changes(d->tag, tag))
        return;
    const bool isOtherFolder = getFolder() != folder;
    const QPointer<Report> self(this);
    const bool areLoaded = d->loadSettingsOfNewFolder();
    if (!self || !d->emitEach({&Report::tagChanged}) || (isOtherFolder && !d->tellFolder()))
        return;
    if (areLoaded)
        settingsLoaded();
}

QString Report::getFolder() const
{
    return d->folder.isEmpty() ? getTag() : d->folder;
}

void Report::setFolder(const QString& folder)
{
    const QPointer<Report> self(this);
    if (!changes(d->folder, folder))
        return;
    const bool areLoaded = d->loadSettingsOfNewFolder();
    if (self && d->tellFolder() && areLoaded)
        settingsLoaded();
}

bool Report::getCanWriteToJobManager() const
{
    const bool templateAllows = d->document.getAttr(QStringLiteral("canWriteToJobManager")).toBool();
    return d->canWriteToJobManager.value_or(templateAllows) && uiutils::instrument::isJobActive();
}

void Report::setCanWriteToJobManager(bool allowed)
{
    if (changes(d->canWriteToJobManager, std::optional(allowed)))
        Q_EMIT canWriteToJobManagerChanged();
}

bool Report::getCanWriteToFile() const
{
    return d->canWriteToFile.value_or(d->document.getAttr(QStringLiteral("canWriteToFile")).toBool());
}

void Report::setCanWriteToFile(bool allowed)
{
    if (changes(d->canWriteToFile, std::optional(allowed)))
        Q_EMIT canWriteToFileChanged();
}

/// That of the next save: a running one writes to where it began, but nobody is notified when it is over.
QString Report::getSaveLocation()
{
    return uiutils::instrument::shownPath(uiutils::ReportDestinations::current().folder(getReportFilePath()));
}

QVariantList Report::getReportFiles()
{
    return d->listing.files(uiutils::ReportDestinations::current().folder(getReportFilePath()));
}

QString Report::getLastSavedXML() const
{
    return d->lastSavedXml;
}

QString Report::getOrientation() const
{
    const QString orientation = d->ownOrTemplate(d->orientation, "orientation");
    return orientation.isEmpty() ? QStringLiteral("portrait") : orientation;
}

void Report::setOrientation(const QString& orientation)
{
    if (changes(d->orientation, orientation))
        Q_EMIT orientationChanged();
}

QString Report::getTitle() const
{
    return d->ownOrTemplate(d->title, "title");
}

void Report::setTitle(const QString& title)
{
    if (changes(d->title, title))
        Q_EMIT titleChanged();
}

QString Report::getSubject() const
{
    return d->ownOrTemplate(d->subject, "subject");
}

void Report::setSubject(const QString& subject)
{
    if (changes(d->subject, subject))
        Q_EMIT subjectChanged();
}

bool Report::getIncludeJobInfo() const
{
    return d->includeJobInfo;
}

void Report::setIncludeJobInfo(bool include)
{
    if (changes(d->includeJobInfo, include))
        Q_EMIT includeJobInfoChanged();
}

bool Report::getIncludeCustomerInfo() const
{
    return d->includeCustomerInfo;
}

void Report::setIncludeCustomerInfo(bool include)
{
    d->includeCustomerInfo = include;
}

bool Report::getShowHardwareRevs() const
{
    return d->showHardwareRevs;
}

void Report::setShowHardwareRevs(bool show)
{
    if (changes(d->showHardwareRevs, show))
        Q_EMIT showHardwareRevsChanged();
}

bool Report::getShowSoftwareRevs() const
{
    return d->showSoftwareRevs;
}

void Report::setShowSoftwareRevs(bool show)
{
    if (changes(d->showSoftwareRevs, show))
        Q_EMIT showSoftwareRevsChanged();
}

QString Report::getJobSummary() const
{
    return uiutils::instrument::jobSummary();
}

QString Report::getJobSchema() const
{
    return d->jobSchema;
}

void Report::setJobSchema(const QString& schema)
{
    if (changes(d->jobSchema, schema))
        Q_EMIT jobSchemaChanged();
}

bool Report::getNotifiesTray() const
{
    return d->notifiesTray;
}

void Report::setNotifiesTray(bool notifies)
{
    d->notifiesTray = notifies;
}

bool Report::getNotifiesOncePerSave() const
{
    return d->notifiesOncePerSave;
}

void Report::setNotifiesOncePerSave(bool once)
{
    d->notifiesOncePerSave = once;
}

QStringList Report::getScreenshotList() const
{
    return d->screenshots;
}

void Report::setScreenshotList(const QStringList& screenshots)
{
    if (changes(d->screenshots, screenshots))
        Q_EMIT screenshotListChanged();
}
