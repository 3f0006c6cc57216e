#include "report/saving/saverun_p.h"

#include "base/paths_p.h"
#include "core/itemids_p.h"
#include "instrument/drives_p.h"
#include "report/reportnaming_p.h"
#include "report/reporttexts_p.h"

#include <kiv/filesystemusage.h>
#include <kiv/kivclientinterface.h>

#include <QFile>

#include <algorithm>
#include <utility>

namespace uiutils {

bool save(const std::shared_ptr<Saving>& saving, bool overwrite)
{
    return !saving->isBusy && SaveRun(saving, overwrite).run();
}

SaveRun::SaveRun(std::shared_ptr<Saving> saving, bool overwrite)
    : m_saving(std::move(saving))
    , m_overwrite(overwrite)
{
}

SaveRun::~SaveRun()
{
    m_saving->endSave();
}

bool SaveRun::run()
{
    m_saving->question.withdraw();
    if (!hooks().isAlive())
        return false;
    m_saving->beginSave();
    m_saving->isBusy = true;
    const bool isReady = getReady();
    // The user may answer at once, and the answer may start another save within this one.
    m_saving->isBusy = false;
    if (!isReady)
        return fail();
    if (!mayWrite())
        return false;
    m_saving->isBusy = true;
    const bool isWritten = write();
    m_saving->isBusy = false;
    return isWritten ? announce() : fail();
}

// --- What is to be saved, and where ---

bool SaveRun::getReady()
{
    hooks().storeSettings();
    if (!takeName())
        return false;
    keepName();
    hooks().takeJobInfo();
    m_plan.isSynced = hooks().isSynced();
    takeDestinations();
    return hasRoom() && hooks().isAlive();
}

/// A name that cannot be a file name, and a format that does not exist, are rejected before a folder is made.
bool SaveRun::takeName()
{
    m_plan.name = hooks().chosenName();
    m_choice = hooks().chosenFormats();
    m_plan.isAll = m_choice.isAll;
    const QString problem = planProblem(m_plan.name, m_choice, hooks().isCompressed());
    if (!hooks().isAlive())
        return false;
    if (!problem.isEmpty()) {
        m_saving->dialogs.notify(ReportTexts::tr("Write Error"), problem);
        return false;
    }
    hooks().started(m_plan.name);
    return true;
}

void SaveRun::keepName()
{
    KIVClientInterface* client = KIVClientInterface::getBaseMgrClient();
    if (hooks().keepsName() && client)
        client->invokeAction(itemids::updateNameConfigs);
}

/// What the user has agreed to replace is where it was when the user was asked, and nowhere else.
void SaveRun::takeDestinations()
{
    m_saving->consent.begin(m_overwrite);
    m_saving->fixedDestinations = m_saving->consent.destinations().value_or(ReportDestinations::current());
}

bool SaveRun::hasRoom()
{
    const QStringList folders = m_saving->destinations().foldersToCheck(hooks().baseFolder());
    const QString message = ReportTexts::tr("There is not enough space to save the report.");
    return std::all_of(folders.cbegin(), folders.cend(),
            [&](const QString& folder) { return FileSystemUsage::checkAndNotifyBeforeSave(onDisk(folder), message); });
}

bool SaveRun::mayWrite()
{
    const auto pathOf = [this](const QString& name, const QString& suffix) { return hooks().pathOf(name, suffix); };
    m_plan.files = plannedFiles(m_plan.name, m_choice.formats, m_saving->destinations().copiesToUsb(), pathOf);
    const QStringList paths = m_plan.paths(instrument::isDriveThere(paths::usb));
    m_saving->consent.lookAt(paths);
    // The name, the format or the USB drive may have changed since the user said yes.
    return hooks().isAlive() && m_saving->mayWrite(m_saving->consent.unasked(paths), false);
}

// --- The files ---

bool SaveRun::write()
{
    SaveProgress& progress = m_saving->progress;
    const bool hasOldProgress = progress.value() > 0;
    progress.begin(m_plan.files.size());
    hooks().savingChanged();
    if (hasOldProgress)
        hooks().progressChanged();
    m_saving->notices.begin(hooks().notifiesOncePerSave());
    bool isComplete = writeFiles();
    m_saving->notices.end();
    // What a user does not want synced is not synced, even if another format could not be written.
    updateSyncList();
    isComplete = isComplete && copyToUsb();
    progress.end();
    hooks().savingChanged();
    return isComplete && hooks().isAlive();
}

bool SaveRun::writeFiles()
{
    hooks().prepareDocument();
    // A hook may have cancelled the save.
    if (!m_saving->tellProgress(false))
        return false;
    bool isComplete = true;
    for (int i = 0; i < m_plan.files.size(); ++i) {
        const bool isWritten = writeFile(m_plan.files.at(i));
        isComplete = isComplete && isWritten;
        // An answer that comes while this save runs would be rejected; and a format that was cancelled is not done.
        if (!isWritten && (m_saving->question.isAsking() || m_saving->progress.isCancelled()))
            return false;
        const bool goesOn = m_saving->tellProgress(m_saving->progress.finishFormat());
        // After the last file nothing is left to cancel.
        if (!hooks().isAlive() || (!goesOn && i + 1 < m_plan.files.size()))
            return false;
    }
    return isComplete;
}

bool SaveRun::writeFile(const PlannedFile& file)
{
    const bool isCompressed = hooks().isCompressed();
    if (!hooks().write(file.format->value, file.path, m_saving->consent.allows(file.path)))
        return false;
    // A derived controller may have written the file itself.
    const QString plain = isCompressed ? file.path + gzipSuffix : file.path;
    m_saved += file;
    m_written += m_saving->written.value(file.path, plain);
    hooks().describe(m_written.constLast(), file.format->label);
    return true;
}

/// If the controller was deleted meanwhile, its reports remain, and so does what the user has chosen for them.
void SaveRun::updateSyncList()
{
    hooks().filesSaved(m_written, m_plan.isSynced);
    // A report that could not be compressed was saved, too.
    const QStringList files = m_plan.isSynced ? m_written : m_written + m_saving->strays;
    if (!files.isEmpty())
        m_saving->updateSyncList(files, m_plan.isSynced);
}

// --- The copies ---

/// A USB drive that was not there when the save began, or another one than then, may contain reports that the user was
/// not asked about.
bool SaveRun::mayCopy()
{
    QStringList copies;
    for (const PlannedFile& file : qAsConst(m_saved)) {
        if (!file.copy.isEmpty())
            copies += file.copy;
    }
    return !instrument::isDriveThere(paths::usb) || m_saving->mayWrite(m_saving->consent.unasked(copies), false);
}

bool SaveRun::copyToUsb()
{
    if (!m_saving->destinations().copiesToUsb())
        return true;
    if (!hooks().isAlive() || !mayCopy())
        return false;
    bool isComplete = true;
    for (int i = 0; i < m_saved.size(); ++i) {
        const bool isCopied = hooks().isAlive() && copyToUsb(m_saved.at(i), m_written.at(i));
        isComplete = isComplete && isCopied;
    }
    return isComplete;
}

bool SaveRun::copyToUsb(const PlannedFile& file, const QString& written)
{
    if (file.copy.isEmpty())
        return true;
    const bool overwrite = m_saving->consent.allows(file.copy);
    if (!m_saving->copyToUsb(written, overwrite))
        return false;
    // The user has released a report of the name, compressed or not.
    if (overwrite && written != file.path)
        QFile::remove(onDisk(file.copy));
    return true;
}

// --- The end ---

bool SaveRun::announce()
{
    const QString path = m_written.constFirst();
    // The files of all formats share the name.
    hooks().succeeded(path, m_plan.isAll ? safePathPart(m_plan.name) : path.section(QLatin1Char('/'), -1));
    return true;
}

bool SaveRun::fail()
{
    // A save that is asking has not failed yet.
    if (!m_saving->question.isAsking())
        hooks().failed(m_plan.name);
    return false;
}

} // namespace uiutils
