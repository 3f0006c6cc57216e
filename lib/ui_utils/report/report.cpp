#include "report/report.h"

#include "base/durablefile.h"
#include "base/paths.h"
#include "core/itemids.h"
#include "instrument/basemanager_p.h"
#include "instrument/drives_p.h"
#include "instrument/job_p.h"
#include "report/reportdestinations_p.h"
#include "report/reportformats_p.h"
#include "report/reportlisting_p.h"
#include "report/reportnaming_p.h"
#include "report/reportsettingsstore_p.h"
#include "report/reportstate_p.h"
#include "writers/pages/reportitem.h"

#include <kiv/kivclientinterface.h>
#include <kiv/kivclientitem.h>

#include <QCoreApplication>
#include <QFile>
#include <QTimer>

using uiutils::changes;
using uiutils::onDisk;

namespace {

constexpr int settingsDelay = 100;

QMap<QString, QVariant> attributesOf(const QString& name, const QString& type, const QString& label)
{
    return {{QStringLiteral("name"), name}, {QStringLiteral("type"), type}, {QStringLiteral("label"), label}};
}

QString environmentText(const char* variable)
{
    return QFile::decodeName(qgetenv(variable));
}

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
    , m_state(std::make_unique<uiutils::ReportState>())
{
    watchServices();
    createSettings();
    QTimer::singleShot(settingsDelay, this, &Report::slotCreateSettings);
    m_baseDirectory = uiutils::paths::reports;
    for (const uiutils::ReportFormat& format : uiutils::allReportFormats())
        setFormatApplicable(format.value, format.isAlwaysOffered);
    if (KIVClientInterface* client = KIVClientInterface::getBaseMgrClient())
        client->setItem(uiutils::itemids::customDefaultName, QString());
    m_workflowClient = KIVClientInterface::getSessionBusClient(uiutils::itemids::workflowManager);
}

/// A dialog that closes with its asker tells the pages, which may know the controller as long as it is a QObject.
Report::~Report()
{
    m_isSaving = true;
    m_state->closeDialogs();
}

// --- Services ---

void Report::watchServices()
{
    KIVClientInterface* client = KIVClientInterface::getBaseMgrClient();
    if (!client)
        return;
    watchItems();
    connect(client, &KIVClientInterface::itemsChanged, this, [this] {
        watchItems();
        if (emitEach({&Report::canWriteToJobManagerChanged, &Report::jobSummaryChanged}))
            tellLocation();
    });
}

void Report::watchItems()
{
    const KIVClientInterface* client = KIVClientInterface::getBaseMgrClient();
    const QStringList jobItems = client ? client->getItemIds(uiutils::itemids::jobManager) : QStringList();
    for (const QString& id : jobItems) {
        if (const KIVClientItem* item = uiutils::instrument::baseManagerItem(id))
            connect(item, &KIVClientItem::valueChanged, this, &Report::slotValueChanged, Qt::UniqueConnection);
    }
    for (const QLatin1String& id : {uiutils::itemids::saveLocation, uiutils::itemids::usbAttached}) {
        if (const KIVClientItem* item = uiutils::instrument::baseManagerItem(id))
            connect(item, &KIVClientItem::valueChanged, this, &Report::tellLocation, Qt::UniqueConnection);
    }
}

void Report::slotValueChanged()
{
    const auto* item = qobject_cast<KIVClientItem*>(sender());
    if (item && item->getId().contains(uiutils::itemids::jobActiveWord))
        emitEach({&Report::canWriteToJobManagerChanged, &Report::jobSummaryChanged});
    else
        Q_EMIT jobSummaryChanged();
}

bool Report::emitEach(std::initializer_list<void (Report::*)()> notifiers)
{
    const QPointer<Report> self(this);
    for (const auto notifier : notifiers) {
        Q_EMIT(this->*notifier)();
        if (!self)
            return false;
    }
    return true;
}

// --- Settings ---

void Report::createSettings()
{
    auto* name = new StringUiData(this);
    QMap<QString, QVariant> attributes = attributesOf(uiutils::nameSetting, UiData::TYPE_STRING, tr("Name"));
    attributes.insert(QStringLiteral("regex"), QStringLiteral("^[(?!._)\\w\\d-.\\s]{1,50}$"));
    name->setAttributes(attributes);
    name->setValue(QString());
    addSetting(name);

    auto* format = new EnumUiData(this);
    format->setAttributes(attributesOf(uiutils::formatSetting, UiData::TYPE_ENUM, tr("Format")));
    uiutils::addFormatChoices(*format);
    format->setValue(QVariant(int(NSReport::REPORT_FORMAT_PDF)));
    addSetting(format);

    auto* sync = new BoolUiData(this);
    sync->setAttributes(attributesOf(uiutils::syncSetting, UiData::TYPE_BOOL, tr("Sync with Meridex")));
    addSetting(sync);
}

void Report::addSetting(UiData* item)
{
    if (!item)
        return;
    item->setParent(this);
    UiData* former = m_settings.value(item->getName());
    m_settings.insert(item->getName(), item);
    m_state->settingOrigins->insert(item->getName(), {item->getValue(), QVariant(), QString(), true});
    // A derived controller may give its item the value that it starts with afterwards.
    QMetaObject::invokeMethod(
            this, [this] { uiutils::settleReportSettings(m_settings, *m_state->settingOrigins); },
            Qt::QueuedConnection);
    if (former && former != item)
        former->deleteLater();
    Q_EMIT settingsChanged();
}

void Report::setFormatApplicable(int format, bool applicable)
{
    const UiData* item = m_settings.value(uiutils::formatSetting);
    const UiDataEnums* choices = item ? item->getUiEnumList() : nullptr;
    const QList<UiEnumType*> list = choices ? choices->getEnumList() : QList<UiEnumType*>();
    const auto choice = std::find_if(
            list.cbegin(), list.cend(), [=](const UiEnumType* candidate) { return candidate->getValue() == format; });
    if (choice != list.cend())
        (*choice)->setApplicable(applicable);
}

void Report::slotCreateSettings()
{
    const QPointer<Report> self(this);
    loadSettings();
    if (self)
        settingsLoaded();
}

void Report::loadSettings()
{
    const QString path = uiutils::reportSettingsPath(getFolder());
    m_state->settingsPath = path;
    uiutils::loadReportSettings(path, m_settings, m_state->settingOrigins);
}

/// The first are loaded when the page has had its time to set the folder.
bool Report::loadSettingsOfNewFolder()
{
    const QString& loaded = m_state->settingsPath;
    if (loaded.isNull() || loaded == uiutils::reportSettingsPath(getFolder()))
        return false;
    loadSettings();
    return true;
}

void Report::saveSettings()
{
    uiutils::saveReportSettings(uiutils::reportSettingsPath(getFolder()), m_settings, *m_state->settingOrigins);
}

QVariantMap Report::getSettings() const
{
    QVariantMap items;
    for (auto it = m_settings.cbegin(); it != m_settings.cend(); ++it)
        items.insert(it.key(), QVariant::fromValue<QObject*>(*it));
    return items;
}

KivData* Report::getSetting(const QString& name)
{
    return m_settings.value(name);
}

KivData* Report::getConstSetting(const QString& name) const
{
    return m_settings.value(name);
}

// --- Properties ---

QString Report::getTemplatePath() const
{
    return m_templatePath;
}

void Report::setTemplatePath(const QString& path)
{
    const QString folder = getFolder();
    const QString location = getSaveLocation();
    if (!readTemplate(path))
        return;
    const bool isOtherFolder = folder != getFolder();
    const bool isOtherLocation = location != getSaveLocation();
    const QPointer<Report> self(this);
    const bool areLoaded = loadSettingsOfNewFolder();
    if (!self
            || !emitEach({&Report::templatePathChanged, &Report::tagChanged, &Report::orientationChanged,
                    &Report::titleChanged, &Report::subjectChanged, &Report::reportFilesChanged,
                    &Report::canWriteToJobManagerChanged, &Report::canWriteToFileChanged}))
        return;
    if (isOtherFolder && !emitEach({&Report::folderChanged}))
        return;
    if (isOtherLocation && !emitEach({&Report::saveLocationChanged}))
        return;
    if (areLoaded)
        settingsLoaded();
}

/// A file that cannot be read would empty the document, so another one reads it. Reading it twice might find two files.
bool Report::readTemplate(const QString& path)
{
    ReportTemplate trial;
    trial.readFile(path);
    if (trial.hasError())
        return false;
    m_document.adopt(trial);
    m_templatePath = path;
    return true;
}

QString Report::ownOrTemplate(const QString& own, const char* key) const
{
    return own.isEmpty() ? m_document.getAttr(QLatin1String(key)).toString() : own;
}

void Report::setBaseDirectory(const QString& directory)
{
    // With a slash behind it, no folder would be the top of the file system.
    if (changes(m_baseDirectory, directory.isEmpty() ? QString(uiutils::paths::reports) : directory))
        tellLocation();
}

QString Report::getTag() const
{
    return m_tag.isEmpty() ? m_document.getTag() : m_tag;
}

void Report::setTag(const QString& tag)
{
    const QString folder = getFolder();
    if (!changes(m_tag, tag))
        return;
    const bool isOtherFolder = getFolder() != folder;
    const QPointer<Report> self(this);
    const bool areLoaded = loadSettingsOfNewFolder();
    if (!self || !emitEach({&Report::tagChanged}) || (isOtherFolder && !tellFolder()))
        return;
    if (areLoaded)
        settingsLoaded();
}

QString Report::getFolder() const
{
    return m_folder.isEmpty() ? getTag() : m_folder;
}

void Report::setFolder(const QString& folder)
{
    const QPointer<Report> self(this);
    if (!changes(m_folder, folder))
        return;
    const bool areLoaded = loadSettingsOfNewFolder();
    if (self && tellFolder() && areLoaded)
        settingsLoaded();
}

bool Report::tellFolder()
{
    return emitEach({&Report::folderChanged}) && tellLocation();
}

/// Reports are listed where the next one goes.
bool Report::tellLocation()
{
    return emitEach({&Report::reportFilesChanged, &Report::saveLocationChanged});
}

bool Report::getCanWriteToJobManager() const
{
    const bool templateAllows = m_document.getAttr(QStringLiteral("canWriteToJobManager")).toBool();
    return m_canWriteToJobManager.value_or(templateAllows) && uiutils::instrument::isJobActive();
}

void Report::setCanWriteToJobManager(bool allowed)
{
    if (changes(m_canWriteToJobManager, std::optional(allowed)))
        Q_EMIT canWriteToJobManagerChanged();
}

bool Report::getCanWriteToFile() const
{
    return m_canWriteToFile.value_or(m_document.getAttr(QStringLiteral("canWriteToFile")).toBool());
}

void Report::setCanWriteToFile(bool allowed)
{
    if (changes(m_canWriteToFile, std::optional(allowed)))
        Q_EMIT canWriteToFileChanged();
}

/// Of the next save: one that runs goes on to where it began, but nobody hears of it when it is over.
QString Report::getSaveLocation()
{
    return m_state->shown(uiutils::ReportDestinations::current().folder(getReportFilePath()));
}

QVariantList Report::getReportFiles()
{
    return m_state->listing.files(uiutils::ReportDestinations::current().folder(getReportFilePath()));
}

QString Report::getOrientation() const
{
    const QString orientation = ownOrTemplate(m_orientation, "orientation");
    return orientation.isEmpty() ? QStringLiteral("portrait") : orientation;
}

void Report::setOrientation(const QString& orientation)
{
    if (changes(m_orientation, orientation))
        Q_EMIT orientationChanged();
}

QString Report::getTitle() const
{
    return ownOrTemplate(m_title, "title");
}

void Report::setTitle(const QString& title)
{
    if (changes(m_title, title))
        Q_EMIT titleChanged();
}

QString Report::getSubject() const
{
    return ownOrTemplate(m_subject, "subject");
}

void Report::setSubject(const QString& subject)
{
    if (changes(m_subject, subject))
        Q_EMIT subjectChanged();
}

void Report::setIncludeJobInfo(bool include)
{
    if (changes(m_includeJobInfo, include))
        Q_EMIT includeJobInfoChanged();
}

void Report::setShowHardwareRevs(bool show)
{
    if (changes(m_showHardwareRevs, show))
        Q_EMIT showHardwareRevsChanged();
}

void Report::setShowSoftwareRevs(bool show)
{
    if (changes(m_showSoftwareRevs, show))
        Q_EMIT showSoftwareRevsChanged();
}

QString Report::getJobSummary() const
{
    return uiutils::instrument::jobSummary();
}

void Report::setJobSchema(const QString& schema)
{
    if (changes(m_jobSchema, schema))
        Q_EMIT jobSchemaChanged();
}

void Report::setScreenshotList(const QStringList& screenshots)
{
    if (changes(m_screenshots, screenshots))
        Q_EMIT screenshotListChanged();
}

// --- Formats and names ---

int Report::getFormat() const
{
    const UiData* item = m_settings.value(uiutils::formatSetting);
    const QVariant value = item ? item->getValue() : QVariant();
    bool isNumber = false;
    const int format = value.toInt(&isNumber);
    return isNumber ? format : -1;
}

QString Report::getSuffixForReport() const
{
    const uiutils::ReportFormat* format = uiutils::reportFormat(getFormat());
    return format ? QString(format->suffix) : QString();
}

bool Report::isPDF() const
{
    return getFormat() == NSReport::REPORT_FORMAT_PDF;
}

bool Report::isXml() const
{
    return getFormat() == NSReport::REPORT_FORMAT_XML;
}

bool Report::isHtml() const
{
    return getFormat() == NSReport::REPORT_FORMAT_HTML;
}

bool Report::isText() const
{
    return getFormat() == NSReport::REPORT_FORMAT_TEXT;
}

bool Report::isJson() const
{
    return getFormat() == NSReport::REPORT_FORMAT_JSON;
}

bool Report::isAll() const
{
    return getFormat() == NSReport::REPORT_FORMAT_ALL;
}

QString Report::proposedFileName()
{
    return uiutils::proposedReportName(environmentText("PLOV_SHORTLABEL"), QDateTime::currentDateTime());
}

void Report::setCustomDefaultReportName(const QString&) { }

QString Report::cannotGenerateReportMessage()
{
    return QString();
}

QString Report::getReportFilePath()
{
    return uiutils::reportFolder(m_baseDirectory, environmentText("PLOV_PROVIDER"), getFolder());
}

QString Report::getSaveFilePath(const QString& name, const QString& suffix)
{
    const QString folder = m_state->destinations().folder(getReportFilePath());
    // Where a stick was, it would be the unit's.
    if (uiutils::instrument::isDriveThere(folder))
        uiutils::makeFolderDurably(onDisk(folder));
    return uiutils::reportPath(folder, name, suffix);
}

QString Report::getOpenReportPath(const QString& nm)
{
    return uiutils::reportNamed(nm, getReportFiles());
}

QString Report::getCdmTestType()
{
    return m_cdmTestType;
}

QString Report::getCdmTestLabel()
{
    return m_cdmTestLabel;
}

void Report::setCdmTestTypeAndLabel()
{
    const QString type = uiutils::instrument::baseManagerText(uiutils::itemids::cdmTestType);
    const QString label = uiutils::instrument::baseManagerText(uiutils::itemids::cdmTestLabel);
    m_cdmTestType = type.isEmpty() ? QStringLiteral("none") : type;
    m_cdmTestLabel = label.isEmpty() ? QStringLiteral("None") : label;
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
