#include "base/temporaries_p.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>
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
/// A file in each temporary folder, so that a folder of reports is never taken for one because of its name.
constexpr char folderMark[] = ".uiutils-temporary";
/// Deeper than any program nests temporary files: each level takes a descriptor and some stack.
constexpr int deepestFolder = 32;

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

bool isOwn(const struct stat& entry)
{
    return entry.st_uid == ::geteuid();
}

/// Every access goes through the descriptor of the containing folder: a path could lead elsewhere by the time it is
/// used.
int openMember(int folder, const char* name, int flags)
{
    int fd = -1;
    do {
        fd = ::openat(folder, name, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC | flags);
    } while (fd < 0 && errno == EINTR);
    return fd;
}

/// Whether the name still refers to the opened file.
bool isStillNamed(int folder, const char* name, const struct stat& opened)
{
    struct stat entry = {};
    return ::fstatat(folder, name, &entry, AT_SYMLINK_NOFOLLOW) == 0 && entry.st_dev == opened.st_dev
            && entry.st_ino == opened.st_ino;
}

using Listing = std::unique_ptr<DIR, int (*)(DIR*)>;

/// Opens the folder for listing; null when it cannot be read. The caller keeps the descriptor.
Listing listingOf(int folder)
{
    const int fd = openMember(folder, ".", O_DIRECTORY);
    DIR* const listing = fd < 0 ? nullptr : ::fdopendir(fd);
    if (!listing && fd >= 0)
        ::close(fd);
    return {listing, &::closedir};
}

/// The next name except "." and ".."; null at the end and, with the reason in errno, if the folder cannot be read.
const char* nextMember(DIR* listing)
{
    const dirent* entry = nullptr;
    do {
        errno = 0;
        entry = ::readdir(listing);
    } while (entry && (std::strcmp(entry->d_name, ".") == 0 || std::strcmp(entry->d_name, "..") == 0));
    return entry ? entry->d_name : nullptr;
}

bool removeMember(int folder, const char* name, dev_t device, int depth);

/// False when something remains. The mark of the top folder always does: it identifies the folder until the folder
/// itself is removed.
bool removeMembers(int folder, dev_t device, int depth)
{
    const Listing listing = listingOf(folder);
    if (!listing)
        return false;
    bool isEmpty = true;
    while (const char* name = nextMember(listing.get())) {
        const bool isMark = depth == 0 && std::strcmp(name, folderMark) == 0;
        if (!isMark && !removeMember(folder, name, device, depth))
            isEmpty = false;
    }
    return isEmpty && errno == 0;
}

bool removeMember(int folder, const char* name, dev_t device, int depth)
{
    struct stat entry = {};
    if (::fstatat(folder, name, &entry, AT_SYMLINK_NOFOLLOW) != 0 || !isOwn(entry) || entry.st_dev != device)
        return false;
    if (!S_ISDIR(entry.st_mode))
        return ::unlinkat(folder, name, 0) == 0;
    const int fd = depth < deepestFolder ? openMember(folder, name, O_DIRECTORY) : -1;
    struct stat opened = {};
    const bool isEmpty = fd >= 0 && ::fstat(fd, &opened) == 0 && isOwn(opened) && opened.st_dev == device
            && removeMembers(fd, device, depth + 1);
    if (fd >= 0)
        ::close(fd);
    return isEmpty && ::unlinkat(folder, name, AT_REMOVEDIR) == 0;
}

/// Whether it has the mark, or is empty: then its maker ended before it set the mark, or after it removed the mark.
bool isTemporaryFolder(int folder)
{
    struct stat mark = {};
    if (::fstatat(folder, folderMark, &mark, AT_SYMLINK_NOFOLLOW) == 0)
        return S_ISREG(mark.st_mode) && isOwn(mark);
    const Listing listing = listingOf(folder);
    return listing && !nextMember(listing.get()) && errno == 0;
}

/// The lock is held until the folder is removed, so that no maker uses it meanwhile.
void removeIfStale(int parent, const char* name, Kind kind)
{
    const int fd = openMember(parent, name, kind == Kind::Folder ? O_DIRECTORY : 0);
    if (fd < 0)
        return;
    struct stat opened = {};
    const bool isStale = tryLock(fd) && ::fstat(fd, &opened) == 0 && isOwn(opened);
    if (isStale && kind == Kind::Folder && isTemporaryFolder(fd))
        removeTemporaryFolder(parent, name, fd);
    else if (isStale && S_ISREG(opened.st_mode) && isStillNamed(parent, name, opened))
        ::unlinkat(parent, name, 0);
    ::close(fd);
}

/// False, with the reason in errno, when another process holds the lock, and when that cannot be found out. A link has
/// no maker that could hold one, and is removed itself.
bool removeMemberUnlessHeld(int folder, const char* name)
{
    struct stat entry = {};
    const int fd = openMember(folder, name, 0);
    if (fd < 0) {
        const bool isOwnLink = errno == ELOOP && ::fstatat(folder, name, &entry, AT_SYMLINK_NOFOLLOW) == 0
                && S_ISLNK(entry.st_mode) && isOwn(entry);
        return isOwnLink ? ::unlinkat(folder, name, 0) == 0 : errno == ENOENT;
    }
    const bool isHeld = !tryLock(fd) && errno == EWOULDBLOCK;
    if (!isHeld && ::fstat(fd, &entry) == 0 && isOwn(entry) && isStillNamed(folder, name, entry))
        ::unlinkat(folder, name, 0);
    ::close(fd);
    errno = EBUSY;
    return !isHeld;
}

} // namespace

QString newTemporaryName(QLatin1String end)
{
    // Names of 255 bytes are legal: this one must not grow with the name of the target.
    return stem + QString::number(QRandomGenerator::global()->generate(), 36) + end;
}

bool lockTemporary(int fd)
{
    if (!tryLock(fd))
        return errno != EWOULDBLOCK;
    struct stat entry = {};
    return ::fstat(fd, &entry) != 0 || entry.st_nlink > 0;
}

bool markTemporaryFolder(int folder)
{
    const int fd = ::openat(folder, folderMark, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600);
    return fd >= 0 && ::close(fd) == 0;
}

void removeTemporaryFolder(int parent, const char* name, int folder)
{
    struct stat opened = {};
    if (::fstat(folder, &opened) != 0 || !removeMembers(folder, opened.st_dev, 0))
        return;
    ::unlinkat(folder, folderMark, 0);
    if (isStillNamed(parent, name, opened) && ::unlinkat(parent, name, AT_REMOVEDIR) == 0)
        return;
    // Something remains in it, or was added.
    markTemporaryFolder(folder);
}

bool removeUnlessHeld(const QString& path)
{
    const QFileInfo file(path);
    const QByteArray name = QFile::encodeName(file.fileName());
    // A folder may allow writing and not listing.
    const int folder = ::open(QFile::encodeName(file.path()).constData(), O_PATH | O_DIRECTORY | O_CLOEXEC);
    const bool isFree = folder >= 0 ? removeMemberUnlessHeld(folder, name.constData()) : errno == ENOENT;
    const int reason = errno;
    if (folder >= 0)
        ::close(folder);
    errno = reason;
    return isFree;
}

void removeStaleTemporaries(const QString& folder)
{
    const Listing listing(::opendir(QFile::encodeName(folder).constData()), &::closedir);
    if (!listing)
        return;
    while (const dirent* entry = ::readdir(listing.get())) {
        const Kind kind = kindOf(entry->d_name);
        if (kind != Kind::Foreign)
            removeIfStale(::dirfd(listing.get()), entry->d_name, kind);
    }
}

} // namespace uiutils
