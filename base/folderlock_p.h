#pragma once

#include <QString>
#include <QtGlobal>

namespace uiutils {

/// Keeps other processes, and other locks of this one, away from the files of a folder as long as it lives. Code that
/// takes no lock is not kept away. The lock ends with the process, and leaves no file.
class FolderLock
{
public:
    /// Waits at most so many milliseconds for the present owner.
    FolderLock(const QString& folder, int patience);
    ~FolderLock();
    Q_DISABLE_COPY_MOVE(FolderLock)

    bool isLocked() const { return m_error.isEmpty(); }
    QString error() const { return m_error; }
    /// Whether the path still leads to the locked folder. Somebody may have removed it, and made another of that name.
    /// True if that cannot be found out.
    bool isAt(const QString& folder) const;

private:
    bool wait(int patience) const;

    int m_fd = -1;
    QString m_error;
};

} // namespace uiutils
