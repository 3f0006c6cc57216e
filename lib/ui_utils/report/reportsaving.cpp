// The part of Report that saves.

#include "report/report.h"

#include "base/paths.h"
#include "core/itemids.h"
#include "instrument/drives_p.h"
#include "report/nosynclist_p.h"
#include "report/reportdestinations_p.h"
#include "report/reportformats_p.h"
#include "report/reportnaming_p.h"
#include "report/reportstate_p.h"

#include <kiv/filesystemusage.h>
#include <kiv/kivclientinterface.h>

#include <QDir>
#include <QFile>
#include <QPointer>

#include <algorithm>
#include <utility>

using uiutils::onDisk;

/// One save. Hooks and slots may delete the controller at any of its steps, and it ends there then.
class Report::Save
{
public:
    Save(Report& report, bool overwrite);
    ~Save();
    Q_DISABLE_COPY_MOVE(Save)

    bool run();

private:
    bool getReady();
    bool takeName();
    bool keepName();
    bool takeJobInfo();
    bool takeSyncChoice();
    bool takeDestinations();
    bool hasRoom();
    bool mayWrite();
    bool write();
    bool writeAndRecord();
    bool writeFormats();
    bool writeFormat(const uiutils::ReportFormat& format);
    void recordSync();
    bool mayCopy();
    bool copyToUsb();
    bool announce();
    bool fail();

    void occupy(bool isOccupied);

    QPointer<Report> m_report;
    bool m_overwrite;
    bool m_isSynced = false;
    bool m_isAll = false;
    QString m_name;
    uiutils::ReportFormats m_formats;
    QStringList m_agreedPaths;
    /// The reports that are saved, and the files that they are in: those of compressed ones have ".gz" behind.
    QStringList m_saved;
    QStringList m_written;
};

Report::Save::Save(Report& report, bool overwrite)
    : m_report(&report)
    , m_overwrite(overwrite)
{
}

Report::Save::~Save()
{
    if (m_report)
        m_report->m_state->endSave();
}

bool Report::Save::run()
{
    m_report->m_state->gate.withdraw();
    if (!m_report)
        return false;
    m_report->m_state->beginSave();
    occupy(true);
    const bool isReady = getReady();
    // The user may answer at once, and have another save begin within this one.
    occupy(false);
    if (!isReady)
        return fail();
    if (!mayWrite())
        return false;
    occupy(true);
    const bool isWritten = write();
    occupy(false);
    return isWritten ? announce() : fail();
}

bool Report::Save::getReady()
{
    m_report->saveSettings();
    return takeName() && keepName() && takeJobInfo() && takeSyncChoice() && takeDestinations() && hasRoom();
}

/// A slot that hears of a save's progress would otherwise start one within the other, and that one the next.
void Report::Save::occupy(bool isOccupied)
{
    if (m_report)
        m_report->m_isSaving = isOccupied;
}

/// A name that is none of a file, and no format at all, are refused before a folder is made.
bool Report::Save::takeName()
{
    m_name = m_report->chosenName();
    m_isAll = m_report->isAll();
    m_formats = uiutils::formatsToWrite(m_report->getFormat(), m_report->m_settings.value(uiutils::formatSetting));
    if (m_formats.isEmpty()) {
        const KivData* item = m_report->getSetting(uiutils::formatSetting);
        const QString given = item ? item->getValue().toString() : QString();
        const bool isUnknown = !given.isEmpty() && !uiutils::reportFormat(m_report->getFormat());
        m_report->m_state->tell(tr("Write Error"),
                isUnknown ? tr("There is no format \"%1\" to save the report in.").arg(given)
                          : tr("No format is chosen to save the report in."));
        return false;
    }
    for (const uiutils::ReportFormat* format : qAsConst(m_formats)) {
        const QString problem = uiutils::nameProblem(m_name, format->suffix, m_report->isCompressionEnabled());
        if (problem.isEmpty())
            continue;
        m_report->m_state->tell(tr("Write Error"), problem);
        return false;
    }
    m_report->saveStarted(m_name);
    return m_report;
}

bool Report::Save::keepName()
{
    KIVClientInterface* client = KIVClientInterface::getBaseMgrClient();
    if (m_report->keepsReportName() && client)
        client->invokeAction(uiutils::itemids::updateNameConfigs);
    return m_report;
}

bool Report::Save::takeJobInfo()
{
    if (const KivData* item = m_report->getSetting(uiutils::jobInfoSetting))
        m_report->setIncludeJobInfo(item->getValue().toBool());
    return m_report;
}

bool Report::Save::takeSyncChoice()
{
    const KivData* item = m_report->getSetting(uiutils::syncSetting);
    m_isSynced = item && item->getValue().toBool();
    return m_report;
}

/// What the user has agreed to overwrite lies where the question found it, and nowhere else.
bool Report::Save::takeDestinations()
{
    uiutils::ReportState& state = *m_report->m_state;
    const auto agreed = std::exchange(state.agreed, std::nullopt);
    const bool isAgreed = m_overwrite && agreed;
    m_agreedPaths = isAgreed ? agreed->paths : QStringList();
    state.fixedDestinations = isAgreed ? agreed->destinations : uiutils::ReportDestinations::current();
    return true;
}

bool Report::Save::hasRoom()
{
    const QStringList folders = m_report->m_state->destinations().foldersToCheck(m_report->m_baseDirectory);
    const QString message = tr("There is not enough space to save the report.");
    return std::all_of(folders.cbegin(), folders.cend(), [&](const QString& folder) {
        return FileSystemUsage::checkAndNotifyBeforeSave(onDisk(folder), message);
    }) && m_report;
}

bool Report::Save::mayWrite()
{
    QStringList suffixes;
    for (const uiutils::ReportFormat* format : qAsConst(m_formats))
        suffixes += format->suffix;
    QStringList paths = m_report->targets(m_name, suffixes);
    m_report->m_state->checkedPaths = paths;
    // The name, the format or the stick may be another than when the user said yes.
    for (const QString& path : qAsConst(m_agreedPaths))
        paths.removeAll(path);
    return m_report->mayWrite(paths, m_overwrite && m_agreedPaths.isEmpty());
}

bool Report::Save::write()
{
    uiutils::SaveProgress& progress = m_report->m_state->progress;
    const bool hasOldProgress = progress.value() > 0;
    progress.begin(m_formats.size());
    Q_EMIT m_report->savingChanged();
    if (m_report && hasOldProgress)
        Q_EMIT m_report->progressChanged();
    const bool isWritten = m_report && writeAndRecord() && copyToUsb();
    if (!m_report)
        return false;
    progress.end();
    Q_EMIT m_report->savingChanged();
    return m_report && isWritten;
}

/// What a user keeps from the cloud stays from it also when another format could not be written.
bool Report::Save::writeAndRecord()
{
    const bool isComplete = writeFormats();
    recordSync();
    return m_report && isComplete;
}

bool Report::Save::writeFormats()
{
    m_report->prepareDocument();
    // It may have been cancelled meanwhile.
    if (!m_report || !m_report->tellProgress(false))
        return false;
    bool isComplete = true;
    for (const uiutils::ReportFormat* format : qAsConst(m_formats)) {
        const bool isWritten = writeFormat(*format);
        isComplete = isComplete && isWritten;
        // An answer that comes while this save runs would be refused; and what was given up is not done.
        if (!m_report
                || (!isWritten && (m_report->m_state->gate.isAsking() || m_report->m_state->progress.isCancelled())))
            return false;
        const bool goesOn = m_report->tellProgress(m_report->m_state->progress.finishFormat());
        // Of what is written nothing can be cancelled any more.
        if (!m_report || (!goesOn && format != m_formats.constLast()))
            return false;
    }
    return isComplete;
}

bool Report::Save::writeFormat(const uiutils::ReportFormat& format)
{
    const QString path = m_report->getSaveFilePath(m_name, format.suffix);
    if (!m_report)
        return false;
    bool isCompressed = m_report->m_isCompressionEnabled;
    // Hooks and slots may have changed the folder, and nobody has looked what lies in the new one.
    const bool overwrite = m_overwrite && m_report->m_state->checkedPaths.contains(path);
    if (!(m_report->*format.writer)(path, overwrite))
        return false;
    // The writer may have changed it, and may have been the controller's end.
    if (m_report)
        isCompressed = m_report->m_isCompressionEnabled;
    m_saved += path;
    m_written += isCompressed ? path + GZIP_EXTENSION : path;
    if (m_report)
        m_report->writeMetadata(m_written.constLast(), QLatin1String(format.label));
    return true;
}

/// The reports outlive a controller that went while they were written, and so does what the user has chosen.
void Report::Save::recordSync()
{
    if (m_report) {
        m_report->noteSaved(m_written, m_isSynced);
        // A report that could not be compressed lies there as well.
        const QStringList paths = m_isSynced ? m_written : m_written + m_report->m_state->strays;
        if (!paths.isEmpty())
            m_report->recordSync(paths, m_isSynced);
        return;
    }
    if (m_written.isEmpty())
        return;
    QString error;
    const bool isRecorded = m_isSynced ? uiutils::removeFromNoSyncList(m_written, &error)
                                       : uiutils::addToNoSyncList(m_written, &error);
    if (!isRecorded)
        qWarning("%s", qUtf8Printable(error));
}

/// A stick that was not there when the save began, or another one than then, may hold reports that nobody has asked
/// about.
bool Report::Save::mayCopy()
{
    const QStringList& checked = m_report->m_state->checkedPaths;
    bool overwrite = m_overwrite;
    QStringList copies;
    for (const QString& saved : qAsConst(m_saved)) {
        if (QDir::cleanPath(saved) == uiutils::instrument::usbPath(saved))
            continue;
        copies += uiutils::instrument::usbPath(saved);
        overwrite = overwrite && checked.contains(copies.constLast());
    }
    return !uiutils::instrument::isDriveThere(uiutils::paths::usb) || m_report->mayWrite(copies, overwrite);
}

bool Report::Save::copyToUsb()
{
    if (!m_report->m_state->destinations().copiesToUsb())
        return true;
    bool isComplete = mayCopy();
    if (!isComplete)
        return false;
    for (int i = 0; i < m_written.size(); ++i) {
        const bool isCopied = m_report && m_report->copyToUsb(m_written.at(i), m_overwrite);
        isComplete = isComplete && isCopied;
        // The user has let go of a report of the name before it came to this, whatever its form.
        if (isCopied && m_overwrite && m_written.at(i) != m_saved.at(i))
            QFile::remove(onDisk(uiutils::instrument::usbPath(m_saved.at(i))));
    }
    return isComplete;
}

bool Report::Save::announce()
{
    const QString path = m_written.constFirst();
    // Files of all formats have the name in common.
    const QString saved = m_isAll ? uiutils::safeFileName(m_name) : path.section(QLatin1Char('/'), -1);
    m_report->saveSucceeded(path);
    if (m_report)
        Q_EMIT m_report->reportGenerated(saved);
    return true;
}

bool Report::Save::fail()
{
    // A save that asks has not failed yet.
    if (m_report && !m_report->m_state->gate.isAsking())
        m_report->saveFailed(m_name);
    return false;
}

void Report::startPossibleSave() { }

bool Report::save(bool overwrite)
{
    return !m_isSaving && Save(*this, overwrite).run();
}

QString Report::chosenName()
{
    const KivData* item = getSetting(uiutils::nameSetting);
    QString name = item ? item->getValue().toString() : QString();
    // The label may be such as "1/10 GE", and that is nothing that users could mend.
    if (item && name.isEmpty())
        name = uiutils::safeFileName(proposedFileName());
    return name.isEmpty() ? QStringLiteral("empty") : name.normalized(QString::NormalizationForm_C);
}
