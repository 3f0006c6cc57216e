#include "base/temporarysibling_p.h"

#include "base/temporaries_p.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace uiutils {

TemporarySibling::TemporarySibling(const QString& target, const QString& name)
{
    // The system would take the part before it for the complete path.
    if (target.contains(QChar(QChar::Null)))
        errno = EINVAL;
    else if (name.isEmpty())
        createUnderNewName(QFileInfo(target).path());
    else
        createUnder(name);
    m_created = m_fd >= 0;
    if (m_created)
        takeModeOf(target);
}

void TemporarySibling::createUnderNewName(const QString& folder)
{
    do {
        m_path = folder + QLatin1Char('/') + newTemporaryName(temporaryFileEnd);
        open();
    } while (m_fd < 0 && (errno == EEXIST || errno == EINTR));
}

/// Removes an existing file of that name, which a power cut left. A file that is being written is an error: two writers
/// of one name would take each other's half file for their own. So is a folder, which stays.
void TemporarySibling::createUnder(const QString& name)
{
    m_path = name;
    do {
        if (!removeUnlessHeld(m_path))
            return;
        open();
    } while (m_fd < 0 && errno == EINTR);
}

void TemporarySibling::open()
{
    m_fd = ::open(QFile::encodeName(m_path).constData(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666);
    if (m_fd < 0 || lockTemporary(m_fd))
        return;
    ::close(m_fd);
    m_fd = -1;
    errno = EEXIST;
}

TemporarySibling::~TemporarySibling()
{
    if (m_fd >= 0)
        ::close(m_fd);
    if (m_created && !m_renamed)
        ::unlink(QFile::encodeName(m_path).constData());
}

bool TemporarySibling::write(const QByteArray& contents)
{
    qint64 done = 0;
    while (done < contents.size()) {
        const ssize_t n = ::write(m_fd, contents.constData() + done, size_t(contents.size() - done));
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            return false;
        done += n;
    }
    return true;
}

bool TemporarySibling::sync()
{
    int result = 0;
    do {
        result = ::fsync(m_fd);
    } while (result != 0 && errno == EINTR);
    return result == 0;
}

bool TemporarySibling::close()
{
    const int fd = m_fd;
    m_fd = -1;
    // After EINTR the descriptor is closed on Linux, and synced data are safe.
    return ::close(fd) == 0 || errno == EINTR;
}

bool TemporarySibling::renameTo(const QString& target, bool mayReplace)
{
    const QByteArray from = QFile::encodeName(m_path);
    const QByteArray to = QFile::encodeName(target);
    bool isReplacing = mayReplace;
    if (!mayReplace) {
        m_renamed = ::renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE) == 0;
        isReplacing = !m_renamed && (errno == EINVAL || errno == ENOSYS);
    }
    if (isReplacing)
        m_renamed = ::rename(from.constData(), to.constData()) == 0;
    return m_renamed;
}

/// Called while the file is still empty, so that private data are never readable to others. Failure is not an error:
/// the file systems of USB drives have no modes.
void TemporarySibling::takeModeOf(const QString& target)
{
    struct stat old = {};
    if (::lstat(QFile::encodeName(target).constData(), &old) == 0 && S_ISREG(old.st_mode))
        ::fchmod(m_fd, old.st_mode & 0777);
}

} // namespace uiutils
