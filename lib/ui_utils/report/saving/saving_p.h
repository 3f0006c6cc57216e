#pragma once

#include "report/reportdestinations_p.h"
#include "report/saving/consent_p.h"
#include "report/saving/overwritequestion_p.h"
#include "report/saving/savedialogs_p.h"
#include "report/saving/savednotice_p.h"
#include "report/saving/savehooks_p.h"
#include "report/saving/saveprogress_p.h"

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

namespace uiutils {

/// What one controller keeps for its saves, and how one file is written.
///
/// Shared with the running save, because hooks and slots may delete the controller in the middle of it.
class Saving
{
public:
    explicit Saving(std::unique_ptr<SaveHooks> saveHooks);

    const std::unique_ptr<SaveHooks> hooks;
    Consent consent;
    OverwriteQuestion question;
    SaveDialogs dialogs;
    SavedNotices notices;
    SaveProgress progress;
    /// Whether another save is rejected now. Otherwise a slot that is notified of a save's progress could start one
    /// within the other, and that one the next.
    bool isBusy = false;
    /// Where the running save writes, whatever is plugged in or removed meanwhile.
    std::optional<ReportDestinations> fixedDestinations;
    /// The files that hold the reports, by the paths that their writers were given.
    QMap<QString, QString> written;
    /// Files that the save has made although they were not wanted: uncompressed reports.
    QStringList strays;

    ReportDestinations destinations() const { return fixedDestinations.value_or(ReportDestinations::current()); }

    /// True if nothing exists at the paths, or if `overwrite`; otherwise the user is asked. A yes releases all of them,
    /// and what the running save has checked before.
    bool mayWrite(const QStringList& paths, bool overwrite);
    /// Writes one file, compressed if enabled, and notifies pages and the tray. False if it was not written; the user
    /// is then asked or notified.
    bool write(const QString& path, const QByteArray& contents, bool overwrite);
    /// Copies a saved report to the USB drive. False if that fails; the user is notified.
    bool copyToUsb(const QString& saved, bool overwrite);
    /// Removes the files from the list of reports that are not synced, or adds them.
    void updateSyncList(const QStringList& files, bool isSynced);

    /// `share` of the present format is written. False if writing is to stop.
    bool goesOn(double share) { return tellProgress(progress.advance(share)); }
    /// False if the save was cancelled, or the controller deleted.
    bool tellProgress(bool hasChanged);

    /// Calls `make`, which makes the contents of a file; outside a save it has a progress of its own.
    QByteArray withProgress(const std::function<QByteArray()>& make);

    void accept(const KIVNotification* notification);
    void reject(const KIVNotification* notification);
    /// To be called while the controller is still a complete object: pages are notified of dialogs that close with it.
    void close();

    void beginSave();
    void endSave();
};

/// Saves as the settings say; see Report::save().
bool save(const std::shared_ptr<Saving>& saving, bool overwrite);

} // namespace uiutils
