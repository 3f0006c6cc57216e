#include "report/saving/saving_p.h"

#include "base/paths_p.h"
#include "instrument/drives_p.h"
#include "report/saving/nosynclist_p.h"
#include "report/saving/reportfilewriter_p.h"
#include "report/saving/reportrecord_p.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <utility>

namespace uiutils {

Saving::Saving(std::unique_ptr<SaveHooks> saveHooks)
    : hooks(std::move(saveHooks))
{
}

// --- The question ---

bool Saving::mayWrite(const QStringList& paths, bool overwrite)
{
    const QString taken = overwrite ? QString() : firstTaken(paths, hooks->isCompressed());
    if (taken.isEmpty())
        return true;
    hooks->listenForAnswers();
    consent.ask(destinations(), paths);
    question.ask(taken, takenFiles(paths, hooks->isCompressed()));
    hooks->asked(taken);
    return false;
}

void Saving::accept(const KIVNotification* notification)
{
    if (question.takeAnswered(notification).isEmpty())
        return;
    consent.agree();
    hooks->overwriteAccepted();
}

void Saving::reject(const KIVNotification* notification)
{
    const QString path = question.takeAnswered(notification);
    if (!path.isEmpty())
        hooks->declined(path);
}

// --- One file ---

bool Saving::write(const QString& path, const QByteArray& contents, bool overwrite)
{
    const bool isCompressed = hooks->isCompressed();
    const WrittenFile file = writeReportFile(path, contents, isCompressed, overwrite);
    // Another process may have saved a report of the name meanwhile.
    if (file.isTaken && !mayWrite({path}, overwrite))
        return false;
    if (!file.ok) {
        const bool isStray = !file.path.isEmpty();
        if (isStray)
            strays += file.path;
        dialogs.notifyWriteError(path, file.error);
        if (isStray)
            hooks->filesChanged();
        return false;
    }
    // The user has released the uncompressed report of the name.
    if (isCompressed && overwrite && (QFile::remove(onDisk(path)) || !QFile::exists(onDisk(path))))
        removeReportRecord(path);
    consent.takeUp(path);
    written.insert(path, file.path);
    const bool notifiesTray = hooks->notifiesTray();
    hooks->fileWritten(path, file.path);
    if (hooks->isAlive() ? hooks->notifiesTray() : notifiesTray)
        notices.post(file.path);
    return true;
}

bool Saving::copyToUsb(const QString& saved, bool overwrite)
{
    const QString copy = instrument::usbPath(saved);
    // A report that is saved on the USB drive is its own copy.
    const bool mayReplace = overwrite || QDir::cleanPath(saved) == copy;
    QString error;
    if (copyReportFile(saved, copy, mayReplace, &error))
        return true;
    dialogs.notifyWriteError(copy, error);
    return false;
}

void Saving::updateSyncList(const QStringList& files, bool isSynced)
{
    QString error;
    const bool isUpdated = isSynced ? removeFromNoSyncList(files, &error) : addToNoSyncList(files, &error);
    if (isUpdated)
        return;
    if (hooks->isAlive())
        dialogs.notifySyncError(files, isSynced, error);
    else
        qWarning("%s", qUtf8Printable(error));
}

// --- Progress ---

bool Saving::tellProgress(bool hasChanged)
{
    if (hasChanged)
        hooks->progressChanged();
    if (hooks->isInteractive() && isBusy && progress.isPageDue())
        QCoreApplication::processEvents();
    return hooks->isAlive() && !progress.isCancelled();
}

QByteArray Saving::withProgress(const std::function<QByteArray()>& make)
{
    const bool isAlone = !progress.isRunning();
    if (isAlone)
        progress.begin(1);
    QByteArray contents = make();
    if (isAlone)
        progress.end();
    return contents;
}

// --- Its life ---

void Saving::beginSave()
{
    endSave();
    dialogs.beginSave();
}

void Saving::endSave()
{
    dialogs.endSave();
    consent.end();
    fixedDestinations.reset();
    written.clear();
    strays.clear();
}

void Saving::close()
{
    isBusy = true;
    question.withdraw();
    dialogs.close();
}

} // namespace uiutils
