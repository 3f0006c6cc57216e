#include "base/temporaryfolder_p.h"

#include "base/temporaries_p.h"

#include <QDir>
#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace uiutils {

TemporaryFolder::TemporaryFolder(const QString& parent)
{
    do {
        m_path = newTemporaryPath(parent, temporaryFolderEnd);
    } while (!make(QFile::encodeName(m_path)) && (errno == EEXIST || errno == EINTR));
    if (m_fd < 0)
        m_path.clear();
}

/// False with EEXIST when it has been taken for left behind before its lock was, and has gone.
bool TemporaryFolder::make(const QByteArray& place)
{
    if (::mkdir(place.constData(), 0700) != 0)
        return false;
    m_fd = ::open(place.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (m_fd >= 0 && lockTemporary(m_fd))
        return true;
    const int reason = m_fd >= 0 || errno == ENOENT ? EEXIST : errno;
    if (m_fd >= 0)
        ::close(m_fd);
    m_fd = -1;
    ::rmdir(place.constData());
    errno = reason;
    return false;
}

TemporaryFolder::~TemporaryFolder()
{
    if (!m_path.isEmpty())
        QDir(m_path).removeRecursively();
    if (m_fd >= 0)
        ::close(m_fd);
}

} // namespace uiutils
