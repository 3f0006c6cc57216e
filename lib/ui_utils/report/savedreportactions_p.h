#pragma once

#include "files/fileutils.h"
#include "report/saving/savedialogs_p.h"

#include <QString>

#include <functional>

namespace uiutils {

/// What users can do with a saved report apart from viewing it. They are asked before anything is lost, and notified of
/// errors. Paths are the instrument's.
class SavedReportActions
{
public:
    /// `onChange` is called, as the last step of an action, when reports may have come or gone. It may delete this
    /// object.
    explicit SavedReportActions(std::function<void()> onChange);

    void remove(const QString& path);
    void copyToUsb(const QString& path);
    bool setSynced(const QString& path, bool isSynced);

private:
    void removeNow(const QString& path);
    void copyNow(const QString& path, bool mayReplace);

    std::function<void()> m_onChange;
    /// Each has a question of its own; an error raised by one of them would withdraw its question.
    FileUtils m_removal;
    FileUtils m_copying;
    FileUtils m_errors;
    SaveDialogs m_dialogs;
};

} // namespace uiutils
