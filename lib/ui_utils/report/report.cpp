#include "report/report.h"

#include "core/itemids.h"
#include "core/paths.h"
#include "report/gzip_p.h"
#include "report/jobreport_p.h"
#include "report/nosynclist_p.h"
#include "report/overwritegate_p.h"
#include "report/reportdestinations_p.h"
#include "report/reportfilewriter_p.h"
#include "report/reportformats_p.h"
#include "report/reportlisting_p.h"
#include "report/reportnaming_p.h"
#include "report/reportsettingsstore_p.h"
#include "report/savednotice_p.h"
#include "templ2xmlwriter/templatetoxmlwriter.h"
#include "writers/reportitem.h"
#include "writers/templatetohtmlwriter.h"
#include "writers/templatetopdfwriter.h"

#include <kiv/filesystemusage.h>
#include <kiv/kivclientinterface.h>
#include <kiv/kivclientitem.h>
#include <kiv/kivnotificationmodelmanager.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <utility>

using uiutils::onDisk;

namespace uiutils {

/// What the user is told and asked on behalf of one controller. Questions have a sender of their own, because raising
/// an error would take a pending one back.
class ReportState
{
public:
    OverwriteGate gate;
    FileUtils errors;

    void tell(const QString& title, const QString& text)
    {
        m_refusal = std::make_unique<KIVNotification>();
        m_refusal->setLongLabel(title);
        m_refusal->setMsg(text);
        m_refusal->setError();
        m_refusal->notifyDialog();
    }

private:
    std::unique_ptr<KIVNotification> m_refusal;
};

} // namespace uiutils

namespace {

constexpr int settingsDelay = 100;

const QLatin1String nameSetting("reportName");
const QLatin1String formatSetting("reportFormat");
const QLatin1String syncSetting("reportSync_SS");
const QLatin1String jobInfoSetting("includeJobInfo");

template<typename Value>
bool changes(Value& held, const Value& value)
{
    if (held == value)
        return false;
    held = value;
    return true;
}

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
    m_state->gate.withdraw();
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
        emitEach({&Report::canWriteToJobManagerChanged, &Report::jobSummaryChanged, &Report::saveLocationChanged});
    });
}

void Report::watchItems()
{
    const KIVClientInterface* client = KIVClientInterface::getBaseMgrClient();
    const QStringList jobItems = client ? client->getItemIds(uiutils::itemids::jobManager) : QStringList();
    for (const QString& id : jobItems) {
        if (const KIVClientItem* item = uiutils::baseManagerItem(id))
            connect(item, &KIVClientItem::valueChanged, this, &Report::slotValueChanged, Qt::UniqueConnection);
    }
    for (const QLatin1String& id : {uiutils::itemids::saveLocation, uiutils::itemids::usbAttached}) {
        if (const KIVClientItem* item = uiutils::baseManagerItem(id))
            connect(item, &KIVClientItem::valueChanged, this, &Report::saveLocationChanged, Qt::UniqueConnection);
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
    QMap<QString, QVariant> attributes = attributesOf(nameSetting, UiData::TYPE_STRING, tr("Name"));
    attributes.insert(QStringLiteral("regex"), QStringLiteral("^[(?!._)\\w\\d-.\\s]{1,50}$"));
    name->setAttributes(attributes);
    name->setValue(QString());
    addSetting(name);

    auto* format = new EnumUiData(this);
    format->setAttributes(attributesOf(formatSetting, UiData::TYPE_ENUM, tr("Format")));
    uiutils::addFormatChoices(*format);
    format->setValue(QVariant(int(NSReport::REPORT_FORMAT_PDF)));
    addSetting(format);

    auto* sync = new BoolUiData(this);
    sync->setAttributes(attributesOf(syncSetting, UiData::TYPE_BOOL, tr("Sync with Meridex")));
    addSetting(sync);
}

void Report::addSetting(UiData* item)
{
    if (!item)
        return;
    item->setParent(this);
    UiData* former = m_settings.value(item->getName());
    m_settings.insert(item->getName(), item);
    if (former && former != item)
        former->deleteLater();
    Q_EMIT settingsChanged();
}

void Report::setFormatApplicable(int format, bool applicable)
{
    const UiData* item = m_settings.value(formatSetting);
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
    uiutils::loadReportSettings(uiutils::reportSettingsPath(getFolder()), m_settings);
}

void Report::saveSettings()
{
    uiutils::saveReportSettings(uiutils::reportSettingsPath(getFolder()), m_settings);
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
    if (!readTemplate(path))
        return;
    emitEach({&Report::templatePathChanged, &Report::tagChanged, &Report::orientationChanged, &Report::titleChanged,
            &Report::subjectChanged, &Report::reportFilesChanged, &Report::canWriteToJobManagerChanged,
            &Report::canWriteToFileChanged});
}

/// A file that cannot be read would empty the document, so another one reads it. Reading it twice might find two files.
bool Report::readTemplate(const QString& path)
{
    ReportTemplate trial;
    trial.readFile(onDisk(path));
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
        emitEach({&Report::reportFilesChanged, &Report::saveLocationChanged});
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
    if (emitEach({&Report::tagChanged}) && getFolder() != folder)
        tellFolder();
}

QString Report::getFolder() const
{
    return m_folder.isEmpty() ? getTag() : m_folder;
}

void Report::setFolder(const QString& folder)
{
    if (changes(m_folder, folder))
        tellFolder();
}

void Report::tellFolder()
{
    emitEach({&Report::folderChanged, &Report::reportFilesChanged, &Report::saveLocationChanged});
}

bool Report::getCanWriteToJobManager() const
{
    const bool templateAllows = m_document.getAttr(QStringLiteral("canWriteToJobManager")).toBool();
    return m_canWriteToJobManager.value_or(templateAllows) && uiutils::isJobActive();
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

QString Report::getSaveLocation()
{
    const QString folder = uiutils::ReportDestinations::current().folder(getReportFilePath());
    return m_state->errors.getSanitizedPathName(folder);
}

QVariantList Report::getReportFiles()
{
    return uiutils::reportFiles(getReportFilePath());
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
    return uiutils::jobSummary();
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
    const UiData* item = m_settings.value(formatSetting);
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

void Report::setCustomDefaultReportName(const QString&) {}

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
    const QString folder = uiutils::ReportDestinations::current().folder(getReportFilePath());
    QDir().mkpath(onDisk(folder));
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
    const QString type = uiutils::baseManagerValue(uiutils::itemids::cdmTestType).toString();
    const QString label = uiutils::baseManagerValue(uiutils::itemids::cdmTestLabel).toString();
    m_cdmTestType = type.isEmpty() ? QStringLiteral("none") : type;
    m_cdmTestLabel = label.isEmpty() ? QStringLiteral("None") : label;
}

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
    const KivData* item = getSetting(nameSetting);
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
    if (const KivData* item = getSetting(jobInfoSetting))
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
    const auto formats = uiutils::formatsToWrite(getFormat(), m_settings.value(formatSetting));
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
    const auto formats = self ? uiutils::formatsToWrite(getFormat(), m_settings.value(formatSetting))
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
    const KivData* item = getSetting(syncSetting);
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

// --- Hooks ---

void Report::settingsLoaded() {}
void Report::saveStarted(const QString&) {}
void Report::prepareDocument() {}
void Report::reportWritten(const QString&) {}
void Report::overwriteAsked(const QString&) {}
void Report::overwriteDeclined(const QString&) {}
void Report::saveSucceeded(const QString&) {}
void Report::saveFailed(const QString&) {}
void Report::writeMetadata(const QString&, const QString&) {}

bool Report::ensureValidJobData()
{
    return true;
}

void Report::updateJobTestMetadata() {}

bool Report::keepsReportName()
{
    return true;
}
