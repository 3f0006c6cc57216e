#include "base/folderlock_p.h"

#include <QElapsedTimer>
#include <QFile>
#include <QtDebug>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace uiutils {

namespace {

constexpr useconds_t pause = 500;

} // namespace

FolderLock::FolderLock(const QString& folder, int patience)
{
    do {
        m_fd = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    } while (m_fd < 0 && errno == EINTR);
    if (m_fd < 0 || !wait(patience))
        m_error = qt_error_string(errno);
}

FolderLock::~FolderLock()
{
    if (m_fd >= 0)
        ::close(m_fd);
}

bool FolderLock::isAt(const QString& folder) const
{
    struct stat locked = {};
    struct stat there = {};
    if (::stat(QFile::encodeName(folder).constData(), &there) != 0)
        return errno != ENOENT && errno != ENOTDIR;
    return ::fstat(m_fd, &locked) != 0 || (locked.st_dev == there.st_dev && locked.st_ino == there.st_ino);
}

/// Polls, because a lock that the system waits for cannot be given up in time.
bool FolderLock::wait(int patience) const
{
    QElapsedTimer waited;
    waited.start();
    while (::flock(m_fd, LOCK_EX | LOCK_NB) != 0) {
        if (errno == EINTR)
            continue;
        if (errno != EWOULDBLOCK || waited.hasExpired(patience))
            return false;
        ::usleep(pause);
    }
    return true;
}

} // namespace uiutils
