#pragma once

#include "files/fileutils.h"

#include <kiv/kivnotification.h>

#include <QString>

#include <memory>
#include <optional>

namespace uiutils {

/// What the user is told on behalf of one controller. Questions have a sender of their own, because raising an error
/// would take a pending one back.
class SaveDialogs
{
public:
    /// From here to endSave(), one error of each kind is told however many files it hits.
    void beginSave();
    void endSave();

    /// The report at `path` could not be written: the user is told where, the log why.
    void tellWriteError(const QString& path, const QString& reason);
    /// Something went wrong, in a dialog and in the tray.
    void tell(const QString& title, const QString& text);
    /// What became of the list of reports that are not synced, and why. The log has the reason in any case.
    void tellSyncError(const QString& consequence, const QString& reason);

    /// All of it closes, while those who hear of that find everything whole.
    void close();

private:
    std::unique_ptr<FileUtils> m_errors = std::make_unique<FileUtils>();
    std::unique_ptr<KIVNotification> m_refusal;
    std::optional<bool> m_isFirstError;
    bool m_isSyncErrorTold = false;
};

} // namespace uiutils
