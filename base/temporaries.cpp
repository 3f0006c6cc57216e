#include "base/temporaries_p.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QRandomGenerator>

#include <cerrno>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace uiutils {

namespace {

const QLatin1String stem(".uiutils-");

enum class Kind { File, Folder, Foreign };

Kind kindOf(const char* name)
{
    const QLatin1String text(name, int(std::strlen(name)));
    if (!text.startsWith(stem))
        return Kind::Foreign;
    if (text.endsWith(temporaryFileEnd))
        return Kind::File;
    return text.endsWith(temporaryFolderEnd) ? Kind::Folder : Kind::Foreign;
}

bool tryLock(int fd)
{
    int result = 0;
    do {
        result = ::flock(fd, LOCK_EX | LOCK_NB);
    } while (result != 0 && errno == EINTR);
    return result == 0;
}

/// The lock is kept until it is gone, so that no maker takes it for its own meanwhile.
void removeIfStale(const QString& folder, int folderFd, const char* name, Kind kind)
{
    const int flags = O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC | (kind == Kind::Folder ? O_DIRECTORY : 0);
    const int fd = ::openat(folderFd, name, flags);
    if (fd < 0)
        return;
    struct stat entry = {};
    if (tryLock(fd) && ::fstat(fd, &entry) == 0) {
        if (kind == Kind::Folder)
            QDir(folder + QLatin1Char('/') + QFile::decodeName(name)).removeRecursively();
        else if (S_ISREG(entry.st_mode))
            ::unlinkat(folderFd, name, 0);
    }
    ::close(fd);
}

} // namespace

QString newTemporaryPath(const QString& folder, QLatin1String end)
{
    // Names of 255 bytes are legal: this one must not grow out of the target's own.
    return folder + QLatin1Char('/') + stem + QString::number(QRandomGenerator::global()->generate(), 36) + end;
}

bool lockTemporary(int fd)
{
    if (!tryLock(fd))
        return errno != EWOULDBLOCK;
    struct stat entry = {};
    return ::fstat(fd, &entry) != 0 || entry.st_nlink > 0;
}

bool removeUnlessHeld(const QString& path)
{
    const QByteArray place = QFile::encodeName(path);
    const int fd = ::open(place.constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    const bool isHeld = fd >= 0 && !tryLock(fd) && errno == EWOULDBLOCK;
    if (!isHeld)
        ::unlink(place.constData());
    if (fd >= 0)
        ::close(fd);
    return !isHeld;
}

void removeStaleTemporaries(const QString& folder)
{
    const std::unique_ptr<DIR, int (*)(DIR*)> listing(::opendir(QFile::encodeName(folder).constData()), &::closedir);
    if (!listing)
        return;
    while (const dirent* entry = ::readdir(listing.get())) {
        const Kind kind = kindOf(entry->d_name);
        if (kind != Kind::Foreign)
            removeIfStale(folder, ::dirfd(listing.get()), entry->d_name, kind);
    }
}

} // namespace uiutils
