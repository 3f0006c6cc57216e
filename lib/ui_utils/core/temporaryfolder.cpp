#include "core/temporaryfolder_p.h"

#include "core/temporaries_p.h"

#include <QDir>
#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace uiutils {

TemporaryFolder::TemporaryFolder(const QString& parent)
{
    int result = 0;
    do {
        m_path = newTemporaryPath(parent, temporaryFolderEnd);
        const QByteArray place = QFile::encodeName(m_path);
        result = ::mkdir(place.constData(), 0700);
        if (result != 0)
            continue;
        m_fd = ::open(place.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        if (m_fd < 0 || lockTemporary(m_fd))
            return;
        ::close(m_fd);
        m_fd = -1;
        result = -1;
        errno = EEXIST;
    } while (result != 0 && (errno == EEXIST || errno == EINTR));
    m_path.clear();
}

TemporaryFolder::~TemporaryFolder()
{
    if (!m_path.isEmpty())
        QDir(m_path).removeRecursively();
    if (m_fd >= 0)
        ::close(m_fd);
}

} // namespace uiutils
