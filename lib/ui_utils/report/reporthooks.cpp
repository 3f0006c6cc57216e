#include "report/reporthooks_p.h"

#include "report/report_p.h"

#include <kiv/kivnotificationmodelmanager.h>

namespace uiutils {

ReportHooks::ReportHooks(Report* report)
    : m_report(report)
{
}

ReportHooks::~ReportHooks() = default;

ReportPrivate& ReportHooks::data() const
{
    return *m_report->d;
}

bool ReportHooks::isCompressed() const
{
    return m_report && data().isCompressionEnabled;
}

bool ReportHooks::notifiesTray() const
{
    return m_report && data().notifiesTray;
}

bool ReportHooks::notifiesOncePerSave() const
{
    return m_report && data().notifiesOncePerSave;
}

bool ReportHooks::isInteractive() const
{
    return m_report && data().isInteractive;
}

// --- What the user and the page have chosen ---

void ReportHooks::storeSettings()
{
    if (m_report)
        m_report->saveSettings();
}

QString ReportHooks::chosenName()
{
    return m_report ? data().chosenName() : QString();
}

FormatChoice ReportHooks::chosenFormats()
{
    return m_report ? formatChoice(data().settings.value(formatSetting)) : FormatChoice();
}

void ReportHooks::takeJobInfo()
{
    const KivData* item = m_report ? m_report->getSetting(jobInfoSetting) : nullptr;
    if (item && m_report)
        m_report->setIncludeJobInfo(item->getValue().toBool());
}

bool ReportHooks::isSynced()
{
    const KivData* item = m_report ? m_report->getSetting(syncSetting) : nullptr;
    return item && item->getValue().toBool();
}

QString ReportHooks::baseFolder() const
{
    return m_report ? data().baseDirectory : QString();
}

QString ReportHooks::pathOf(const QString& name, const QString& suffix)
{
    return m_report ? m_report->getSaveFilePath(name, suffix) : QString();
}

// --- The steps, for derived controllers ---

void ReportHooks::started(const QString& name)
{
    if (m_report)
        m_report->saveStarted(name);
}

bool ReportHooks::keepsName()
{
    return m_report && m_report->keepsReportName();
}

void ReportHooks::prepareDocument()
{
    if (m_report)
        m_report->prepareDocument();
}

bool ReportHooks::write(int format, const QString& path, bool overwrite)
{
    if (!m_report)
        return false;
    switch (format) {
    case NSReport::REPORT_FORMAT_PDF:
        return m_report->writePDFReport(path, overwrite);
    case NSReport::REPORT_FORMAT_XML:
        return m_report->writeXmlReport(path, overwrite);
    case NSReport::REPORT_FORMAT_HTML:
        return m_report->writeHtmlReport(path, overwrite);
    case NSReport::REPORT_FORMAT_TEXT:
        return m_report->writeTxtReport(path, overwrite);
    case NSReport::REPORT_FORMAT_JSON:
        return m_report->writeJsonReport(path, overwrite);
    default:
        return data().writeOwnFormat(format, path, overwrite);
    }
}

void ReportHooks::describe(const QString& path, const QString& format)
{
    if (m_report)
        m_report->writeMetadata(path, format);
}

void ReportHooks::asked(const QString& path)
{
    if (m_report)
        m_report->overwriteAsked(path);
}

void ReportHooks::declined(const QString& path)
{
    if (m_report)
        m_report->overwriteDeclined(path);
}

void ReportHooks::succeeded(const QString& path, const QString& name)
{
    if (m_report)
        m_report->saveSucceeded(path);
    if (m_report)
        Q_EMIT m_report->reportGenerated(name);
}

void ReportHooks::failed(const QString& name)
{
    if (m_report)
        m_report->saveFailed(name);
}

// --- What pages are notified of ---

void ReportHooks::savingChanged()
{
    if (m_report)
        Q_EMIT m_report->savingChanged();
}

void ReportHooks::progressChanged()
{
    if (m_report)
        Q_EMIT m_report->progressChanged();
}

void ReportHooks::fileWritten(const QString& path, const QString& saved)
{
    if (m_report && path.endsWith(pdfSuffix))
        data().lastPdf = saved;
    if (m_report && path.endsWith(xmlSuffix) && changes(data().lastSavedXml, saved))
        Q_EMIT m_report->lastSavedXMLChanged();
    if (m_report)
        m_report->reportWritten(saved);
    if (m_report)
        data().tellLocation();
}

void ReportHooks::filesChanged()
{
    if (m_report)
        Q_EMIT m_report->reportFilesChanged();
}

void ReportHooks::filesSaved(const QStringList& files, bool isSynced)
{
    if (m_report)
        data().noteSaved(files, isSynced);
}

void ReportHooks::overwriteAccepted()
{
    if (m_report)
        Q_EMIT m_report->reportOverwriteAccepted();
}

void ReportHooks::listenForAnswers()
{
    if (!m_report)
        return;
    const auto* manager = KIVNotificationModelManager::instance();
    QObject::connect(manager, &KIVNotificationModelManager::notificationAccepted, m_report.data(),
            &Report::overwriteAccepted, Qt::UniqueConnection);
    QObject::connect(manager, &KIVNotificationModelManager::notificationRejected, m_report.data(),
            &Report::overwriteRejected, Qt::UniqueConnection);
}

} // namespace uiutils
