#pragma once

#include <QString>
#include <QtGlobal>

namespace uiutils {

/// Keeps other processes, and other locks of this one, out of a folder's files for as long as it lives. Whoever looks
/// at the files without a lock is not kept out. Nothing is left behind, however the process ends.
class FolderLock
{
public:
    /// Waits so many milliseconds for others to give it back.
    FolderLock(const QString& folder, int patience);
    ~FolderLock();
    Q_DISABLE_COPY_MOVE(FolderLock)

    bool isLocked() const { return m_error.isEmpty(); }
    QString error() const { return m_error; }

private:
    bool wait(int patience) const;

    int m_fd = -1;
    QString m_error;
};

} // namespace uiutils
