#pragma once

#include "files/fileutils.h"

#include <kiv/kivnotification.h>

#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

namespace uiutils {

/// Notifies the user of errors on behalf of one controller. Questions have a sender of their own, because raising an
/// error would withdraw a pending one.
class SaveDialogs
{
public:
    /// Between here and endSave(), the user is notified of one error of each kind, however many files have it.
    void beginSave();
    void endSave();

    /// The report at `path` could not be written: the user reads where, the log has the reason.
    void notifyWriteError(const QString& path, const QString& reason);
    /// Notifies the user of an error, in a dialog and in the tray.
    void notify(const QString& title, const QString& text);
    /// Notifies the user that the list of reports that are not synced could not be changed: what follows from that, and
    /// why. The log has the reason in any case.
    void notifySyncError(const QString& consequence, const QString& reason);
    /// The same, with what follows for the files at the instrument paths, which were to be synced or not.
    void notifySyncError(const QStringList& files, bool isSynced, const QString& reason);

    /// Closes all dialogs while everything is still valid for those who are notified of that.
    void close();

private:
    std::unique_ptr<FileUtils> m_errors = std::make_unique<FileUtils>();
    std::unique_ptr<KIVNotification> m_error;
    std::optional<bool> m_isFirstError;
    bool m_isSyncErrorShown = false;
};

} // namespace uiutils
