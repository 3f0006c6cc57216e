#pragma once

#include "report/reportdestinations_p.h"
#include "report/saving/consent_p.h"
#include "report/saving/overwritequestion_p.h"
#include "report/saving/savedialogs_p.h"
#include "report/saving/savehooks_p.h"
#include "report/saving/saveprogress_p.h"

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

namespace uiutils {

/// What one controller keeps for its saves, and how one file of them is written.
///
/// Shared with the save that runs, because hooks and slots may delete the controller in the middle of it.
class Saving
{
public:
    explicit Saving(std::unique_ptr<SaveHooks> saveHooks);

    const std::unique_ptr<SaveHooks> hooks;
    Consent consent;
    OverwriteQuestion question;
    SaveDialogs dialogs;
    SaveProgress progress;
    /// Whether another save is refused now: a slot that hears of a save's progress would otherwise start one within the
    /// other, and that one the next.
    bool isBusy = false;
    /// Where the save that runs goes, whatever is plugged or pulled meanwhile.
    std::optional<ReportDestinations> fixedDestinations;
    /// The files that reports were written into, by the paths that their writers were given.
    QMap<QString, QString> written;
    /// Files that the save has left, although they are not what was to be written.
    QStringList strays;

    ReportDestinations destinations() const { return fixedDestinations.value_or(ReportDestinations::current()); }

    /// True when nothing lies at the paths, or `overwrite`; otherwise the user is being asked. Whoever answers yes
    /// agrees to all of them, and to what the save that runs has looked at before.
    bool mayWrite(const QStringList& paths, bool overwrite);
    /// Writes one file, compressed if enabled, and tells everybody. False when it was not written; the user is asked or
    /// told.
    bool write(const QString& path, const QByteArray& contents, bool overwrite);
    /// Copies a saved report to the stick. False when that fails, of which the user is told.
    bool copyToUsb(const QString& saved, bool overwrite);
    /// Takes the files off the list of reports that are not synced, or enters them.
    void recordSync(const QStringList& files, bool isSynced);

    /// How much of the format that is being written is done. False when it is to be given up.
    bool goesOn(double share) { return tellProgress(progress.advance(share)); }
    /// False when the save is cancelled, and when the controller is gone.
    bool tellProgress(bool hasChanged);

    void accept(const KIVNotification* notification);
    void reject(const KIVNotification* notification);
    /// A dialog that closes with its asker tells the pages, which may know the controller as long as it is a QObject.
    void close();

    void beginSave();
    void endSave();
};

/// Saves by the settings; see Report::save().
bool save(const std::shared_ptr<Saving>& saving, bool overwrite);

} // namespace uiutils
