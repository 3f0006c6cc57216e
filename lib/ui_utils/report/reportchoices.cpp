// The part of Report that knows what the user chooses: settings, formats, names.

#include "base/durablefile_p.h"
#include "base/paths_p.h"
#include "core/itemids_p.h"
#include "instrument/basemanager_p.h"
#include "instrument/drives_p.h"
#include "report/nameproblem_p.h"
#include "report/report.h"
#include "report/report_p.h"
#include "report/reportformats_p.h"
#include "report/reportnaming_p.h"
#include "report/reportsettingsstore_p.h"
#include "report/saving/saveplan_p.h"

#include <QFile>

#include <algorithm>

using uiutils::onDisk;

namespace {

QString environmentText(const char* variable)
{
    return QFile::decodeName(qgetenv(variable));
}

} // namespace

// --- Settings ---

void Report::addSetting(UiData* item)
{
    if (!item)
        return;
    item->setParent(this);
    UiData* former = d->settings.value(item->getName());
    d->settings.insert(item->getName(), item);
    d->settingOrigins->insert(item->getName(), {item->getValue(), QVariant(), QString(), true});
    // A derived controller may give its item the initial value afterwards.
    QMetaObject::invokeMethod(
            this, [this] { uiutils::settleReportSettings(d->settings, *d->settingOrigins); }, Qt::QueuedConnection);
    if (former && former != item)
        former->deleteLater();
    if (item->getName() == uiutils::nameSetting || item->getName() == uiutils::formatSetting)
        connect(item, &KivData::valueChanged, this, [this] { d->tellProblems(); });
    const QPointer<Report> self(this);
    Q_EMIT settingsChanged();
    if (self)
        d->tellProblems();
}

void Report::setFormatApplicable(int format, bool applicable)
{
    const UiData* item = d->settings.value(uiutils::formatSetting);
    const UiDataEnums* choices = item ? item->getUiEnumList() : nullptr;
    const QList<UiEnumType*> list = choices ? choices->getEnumList() : QList<UiEnumType*>();
    const auto choice = std::find_if(
            list.cbegin(), list.cend(), [=](const UiEnumType* candidate) { return candidate->getValue() == format; });
    if (choice == list.cend())
        return;
    const QPointer<Report> self(this);
    (*choice)->setApplicable(applicable);
    if (self)
        d->tellProblems();
}

bool Report::addFormat(
        int value, const QString& label, const QString& suffix, const std::function<QByteArray()>& generate)
{
    return value >= NSReport::firstOwnFormat && d->addFormat(value, label, suffix, generate);
}

bool Report::offerCsv(bool hasDecimalComma)
{
    return d->addFormat(NSReport::csvFormat, QStringLiteral("CSV"), QStringLiteral(".zip"),
            [this, hasDecimalComma] { return d->csvArchive(hasDecimalComma); });
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
    d->settingsPath = path;
    uiutils::loadReportSettings(path, d->settings, d->settingOrigins);
}

void Report::saveSettings()
{
    uiutils::saveReportSettings(uiutils::reportSettingsPath(getFolder()), d->settings, *d->settingOrigins);
}

QVariantMap Report::getSettings() const
{
    QVariantMap items;
    for (auto it = d->settings.cbegin(); it != d->settings.cend(); ++it)
        items.insert(it.key(), QVariant::fromValue<QObject*>(*it));
    return items;
}

KivData* Report::getSetting(const QString& name)
{
    return d->settings.value(name);
}

KivData* Report::getConstSetting(const QString& name) const
{
    return d->settings.value(name);
}

QVariantMap Report::getJobSettings() const
{
    return {};
}

bool Report::hasJobSettings() const
{
    return false;
}

// --- Formats and names ---

int Report::getFormat() const
{
    return uiutils::formatNumber(d->settings.value(uiutils::formatSetting));
}

QString Report::getSuffixForReport() const
{
    const uiutils::FormatChoice choice = uiutils::formatChoice(d->settings.value(uiutils::formatSetting));
    return choice.isFormat && !choice.isAll ? choice.formats.constFirst()->suffix : QString();
}

QString Report::getNameProblem()
{
    const KivData* const item = getSetting(uiutils::nameSetting);
    const QString name = item ? item->getValue().toString() : QString();
    return name.isEmpty() ? QString() : fileNameProblem(name);
}

QString Report::getFormatProblem() const
{
    return uiutils::formatProblem(uiutils::formatChoice(d->settings.value(uiutils::formatSetting)));
}

QString Report::fileNameProblem(const QString& name)
{
    const uiutils::FormatChoice choice = uiutils::formatChoice(d->settings.value(uiutils::formatSetting));
    return uiutils::reportNameProblem(name, getSetting(uiutils::nameSetting), choice.formats, d->isCompressionEnabled);
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
    return uiutils::reportFolder(d->baseDirectory, environmentText("PLOV_PROVIDER"), getFolder());
}

QString Report::getSaveFilePath(const QString& name, const QString& suffix)
{
    const QString folder = d->saving->destinations().folder(getReportFilePath());
    // Where a USB drive was removed, the folder would be on the unit.
    if (uiutils::instrument::isDriveThere(folder))
        uiutils::makeFolderDurably(onDisk(folder));
    return uiutils::reportPath(folder, name, suffix);
}

QString Report::getOpenReportPath(const QString& nm)
{
    return uiutils::reportNamed(nm, getReportFiles());
}

QString Report::getTestTime() const
{
    return d->testTime;
}

void Report::setTestTime(const QString& testTime)
{
    d->testTime = testTime;
}

QString Report::getTestDuration() const
{
    return d->testDuration;
}

void Report::setTestDuration(const QString& testDuration)
{
    d->testDuration = testDuration;
}

QString Report::getCdmTestType()
{
    return d->cdmTestType;
}

QString Report::getCdmTestLabel()
{
    return d->cdmTestLabel;
}

void Report::setCdmTestTypeAndLabel()
{
    const QString type = uiutils::instrument::baseManagerText(uiutils::itemids::cdmTestType);
    const QString label = uiutils::instrument::baseManagerText(uiutils::itemids::cdmTestLabel);
    d->cdmTestType = type.isEmpty() ? QStringLiteral("none") : type;
    d->cdmTestLabel = label.isEmpty() ? QStringLiteral("None") : label;
}
