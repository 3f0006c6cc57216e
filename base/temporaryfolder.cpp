#include "base/temporaryfolder_p.h"

#include "base/temporaries_p.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace uiutils {

namespace {

int openFolder(int parent, const QByteArray& path, int flags)
{
    int fd = -1;
    do {
        fd = ::openat(parent, path.constData(), O_DIRECTORY | O_CLOEXEC | flags);
    } while (fd < 0 && errno == EINTR);
    return fd;
}

void closeAndForget(int* fd)
{
    const int reason = errno;
    if (*fd >= 0)
        ::close(*fd);
    *fd = -1;
    errno = reason;
}

} // namespace

TemporaryFolder::TemporaryFolder(const QString& parent)
    // Opens folders that allow writing and not listing, too.
    : m_parent(openFolder(AT_FDCWD, QFile::encodeName(parent), O_PATH))
{
    if (m_parent < 0)
        return;
    do {
        m_name = newTemporaryName(temporaryFolderEnd).toLatin1();
    } while (!make() && (errno == EEXIST || errno == EINTR));
    if (m_fd >= 0)
        m_path = parent + QLatin1Char('/') + QString::fromLatin1(m_name);
}

/// False with EEXIST when another process has taken it for stale before it was locked, and removed it.
bool TemporaryFolder::make()
{
    if (::mkdirat(m_parent, m_name.constData(), 0700) != 0)
        return false;
    m_fd = openFolder(m_parent, m_name, O_RDONLY | O_NOFOLLOW);
    const bool isLost = m_fd >= 0 ? !lockTemporary(m_fd) : errno == ENOENT;
    if (m_fd >= 0 && !isLost && markTemporaryFolder(m_fd))
        return true;
    // A process that took it for stale may be about to remove it: then the mark cannot be created in it.
    const int reason = isLost || errno == ENOENT ? EEXIST : errno;
    closeAndForget(&m_fd);
    ::unlinkat(m_parent, m_name.constData(), AT_REMOVEDIR);
    errno = reason;
    return false;
}

TemporaryFolder::~TemporaryFolder()
{
    if (m_fd >= 0)
        removeTemporaryFolder(m_parent, m_name.constData(), m_fd);
    closeAndForget(&m_fd);
    closeAndForget(&m_parent);
}

} // namespace uiutils
