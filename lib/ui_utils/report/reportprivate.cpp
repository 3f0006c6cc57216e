#include "report/report_p.h"

#include "base/paths_p.h"
#include "core/itemids_p.h"
#include "instrument/basemanager_p.h"
#include "report/ownlabel_p.h"
#include "report/reporthooks_p.h"
#include "report/reportnaming_p.h"
#include "writers/csv/csvreport.h"

#include <kiv/kivclientinterface.h>
#include <kiv/kivclientitem.h>

namespace uiutils {

namespace {

QMap<QString, QVariant> attributesOf(const QString& name, const QString& type)
{
    return {{QStringLiteral("name"), name}, {QStringLiteral("type"), type}};
}

} // namespace

ReportPrivate::ReportPrivate(Report* report)
    : saving(std::make_shared<Saving>(std::make_unique<ReportHooks>(report)))
    , baseDirectory(paths::reports)
    , q(report)
{
}

// --- Notifying ---

bool ReportPrivate::tellFolder()
{
    return emitEach({&Report::folderChanged}) && tellLocation();
}

bool ReportPrivate::tellLocation()
{
    return emitEach({&Report::reportFilesChanged, &Report::saveLocationChanged});
}

bool ReportPrivate::emitEach(std::initializer_list<void (Report::*)()> notifiers)
{
    const QPointer<Report> self(q);
    for (const auto notifier : notifiers) {
        Q_EMIT(q->*notifier)();
        if (!self)
            return false;
    }
    return true;
}

bool ReportPrivate::tellProblems()
{
    const QString ofName = q->getNameProblem();
    const QString ofFormat = q->getFormatProblem();
    const bool isOtherName = changes(m_toldNameProblem, ofName);
    const bool isOtherFormat = changes(m_toldFormatProblem, ofFormat);
    return (!isOtherName && !isOtherFormat) || emitEach({&Report::problemsChanged});
}

// --- Services and settings ---

void ReportPrivate::watchServices()
{
    KIVClientInterface* client = KIVClientInterface::getBaseMgrClient();
    if (!client)
        return;
    watchItems();
    QObject::connect(client, &KIVClientInterface::itemsChanged, q, [this] {
        watchItems();
        if (emitEach({&Report::canWriteToJobManagerChanged, &Report::jobSummaryChanged}))
            tellLocation();
    });
}

void ReportPrivate::watchItems()
{
    const KIVClientInterface* client = KIVClientInterface::getBaseMgrClient();
    const QStringList jobItems = client ? client->getItemIds(itemids::jobManager) : QStringList();
    for (const QString& id : jobItems) {
        if (const KIVClientItem* item = instrument::baseManagerItem(id))
            QObject::connect(item, &KIVClientItem::valueChanged, q, &Report::slotValueChanged, Qt::UniqueConnection);
    }
    for (const QLatin1String& id : {itemids::saveLocation, itemids::usbAttached}) {
        const KIVClientItem* item = instrument::baseManagerItem(id);
        if (!item)
            continue;
        QObject::connect(item, &KIVClientItem::valueChanged, q, &Report::reportFilesChanged, Qt::UniqueConnection);
        QObject::connect(item, &KIVClientItem::valueChanged, q, &Report::saveLocationChanged, Qt::UniqueConnection);
    }
}

void ReportPrivate::createSettings()
{
    auto* name = new StringUiData(q);
    QMap<QString, QVariant> attributes = attributesOf(nameSetting, UiData::TYPE_STRING);
    attributes.insert(QStringLiteral("regex"), QStringLiteral("^[(?!._)\\w\\d-.\\s]{1,50}$"));
    name->setAttributes(attributes);
    keepLabelled(name, [] { return Report::tr("Name"); });
    name->setValue(QString());
    q->addSetting(name);

    auto* format = new EnumUiData(q);
    format->setAttributes(attributesOf(formatSetting, UiData::TYPE_ENUM));
    keepLabelled(format, [] { return Report::tr("Format"); });
    addFormatChoices(*format);
    format->setValue(QVariant(int(NSReport::REPORT_FORMAT_PDF)));
    q->addSetting(format);

    auto* sync = new BoolUiData(q);
    sync->setAttributes(attributesOf(syncSetting, UiData::TYPE_BOOL));
    keepLabelled(sync, [] { return Report::tr("Sync with Meridex"); });
    q->addSetting(sync);
}

bool ReportPrivate::loadSettingsOfNewFolder()
{
    if (settingsPath.isNull() || settingsPath == reportSettingsPath(q->getFolder()))
        return false;
    q->loadSettings();
    return true;
}

// --- The document ---

/// A file that cannot be read would empty the document, so another document reads it. Reading it twice could find two
/// different files.
bool ReportPrivate::readTemplate(const QString& path)
{
    ReportTemplate trial;
    trial.readFile(path);
    if (trial.hasError())
        return false;
    document.adopt(trial);
    templatePath = path;
    return true;
}

QString ReportPrivate::ownOrTemplate(const QString& own, const char* key) const
{
    return own.isEmpty() ? document.getAttr(QLatin1String(key)).toString() : own;
}

// --- Saving ---

bool ReportPrivate::addFormat(
        int value, const QString& label, const QString& suffix, const std::function<QByteArray()>& generate)
{
    UiData* item = settings.value(formatSetting);
    if (!item || !generate || ownFormats.contains(value))
        return false;
    const FormatInfo* format = addReportFormat(value, label, suffix);
    if (!format)
        return false;
    ownFormats.insert(value, generate);
    addFormatChoice(*item, *format);
    return true;
}

QByteArray ReportPrivate::csvArchive(bool hasDecimalComma) const
{
    CsvLayout layout;
    layout.hasDecimalComma = hasDecimalComma;
    layout.content.title = q->getTitle();
    layout.content.timestamp = QDateTime::currentDateTime();
    layout.content.includeJobInfo = includeJobInfo;
    layout.content.includeCustomerInfoTop = includeCustomerInfo;
    layout.content.showHardwareRevs = showHardwareRevs;
    layout.content.showSoftwareRevs = showSoftwareRevs;
    return reportCsvZip(document, layout);
}

QString ReportPrivate::chosenName()
{
    const KivData* item = q->getSetting(nameSetting);
    QString name = item ? item->getValue().toString() : QString();
    // The label may be one like "1/10 GE", which users cannot change.
    if (item && name.isEmpty())
        name = safePathPart(q->proposedFileName());
    return name.isEmpty() ? QStringLiteral("empty") : name.normalized(QString::NormalizationForm_C);
}

/// A generator may delete the controller.
bool ReportPrivate::writeGenerated(
        const QString& path, QString (Report::*generate)(), const QString& suffix, bool overwrite)
{
    const QPointer<Report> self(q);
    QString text = (q->*generate)();
    if (text.isNull() && suffix == jsonSuffix)
        text = QStringLiteral("{ }");
    return self && q->writeTextReport(path, text, suffix, overwrite);
}

bool ReportPrivate::writeMade(
        const QString& path, const std::function<QByteArray()>& make, const QString& nothing, bool overwrite)
{
    const auto held = saving;
    if (!held->mayWrite({path}, overwrite))
        return false;
    const QPointer<Report> self(q);
    const QByteArray contents = held->withProgress(make);
    if (!self)
        return false;
    // A report of the name may have appeared while the contents were made, for example on a USB drive.
    if (!contents.isEmpty())
        return held->mayWrite({path}, overwrite) && held->write(path, contents, overwrite);
    if (!held->progress.isCancelled())
        held->dialogs.notifyWriteError(path, nothing);
    return false;
}

bool ReportPrivate::writeOwnFormat(int format, const QString& path, bool overwrite)
{
    const std::function<QByteArray()> make = ownFormats.value(format);
    return make && writeMade(path, make, QStringLiteral("there are no contents"), overwrite);
}

void ReportPrivate::noteSaved(const QStringList& files, bool isSynced)
{
    QStringList& list = isSynced ? syncedReports : unsyncedReports;
    QStringList& other = isSynced ? unsyncedReports : syncedReports;
    for (const QString& file : files) {
        other.removeAll(file);
        list.removeAll(file);
        list += file;
    }
}

} // namespace uiutils
