#pragma once

#include "report/reportformats_p.h"

#include <QString>
#include <QStringList>

namespace uiutils {

/// The controller as saving sees it: what a save asks it, and what it notifies it of.
///
/// Nearly every call reaches virtuals and slots of others, which may delete the controller. From then on calls do
/// nothing, and every answer is empty or false: a save checks isAlive() only where that makes a difference.
class SaveHooks
{
public:
    SaveHooks() = default;
    virtual ~SaveHooks() = default;
    Q_DISABLE_COPY_MOVE(SaveHooks)

    virtual bool isAlive() const = 0;
    virtual bool isCompressed() const = 0;
    virtual bool notifiesTray() const = 0;
    virtual bool notifiesOncePerSave() const = 0;

    // --- What the user and the page have chosen ---
    virtual void storeSettings() = 0;
    virtual QString chosenName() = 0;
    virtual FormatChoice chosenFormats() = 0;
    virtual void takeJobInfo() = 0;
    virtual bool isSynced() = 0;
    virtual QString baseFolder() const = 0;
    virtual QString pathOf(const QString& name, const QString& suffix) = 0;

    // --- The steps, for derived controllers ---
    virtual void started(const QString& name) = 0;
    virtual bool keepsName() = 0;
    virtual void prepareDocument() = 0;
    virtual bool write(int format, const QString& path, bool overwrite) = 0;
    virtual void describe(const QString& path, const QString& format) = 0;
    virtual void asked(const QString& path) = 0;
    virtual void declined(const QString& path) = 0;
    virtual void succeeded(const QString& path, const QString& name) = 0;
    virtual void failed(const QString& name) = 0;

    // --- What pages are notified of ---
    virtual void savingChanged() = 0;
    virtual void progressChanged() = 0;
    /// The report at `path` is now in the file `saved`.
    virtual void fileWritten(const QString& path, const QString& saved) = 0;
    virtual void filesChanged() = 0;
    virtual void filesSaved(const QStringList& files, bool isSynced) = 0;
    virtual void overwriteAccepted() = 0;
    /// Has answers to questions delivered, from now on.
    virtual void listenForAnswers() = 0;
    /// Whether the page handles events while a report is saved.
    virtual bool isInteractive() const = 0;
};

} // namespace uiutils
