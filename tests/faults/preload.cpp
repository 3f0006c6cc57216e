// Preloaded: faults that a tracer cannot inject into a single call of a process.
//
// UIUTILS_FAULT is "PROGRAM:NUMBER:MODE:LOG". NUMBER counts, from 1, the calls on written files since the variable was
// set. In the mode "short" that write() takes half of its data. In the mode "full" it does too, and every later one
// fails, as when a disk fills up. With the number of an error as the mode, close() reports that error after it has
// closed, as the system does. In the mode "dead" NUMBER counts calls that change something below UIUTILS_DEAD_FOLDER;
// that one and every later one there, in any process, fails with EIO, as when a drive is unplugged or breaks. The file
// LOG then names the file that was hit.

#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

struct Order
{
    char program[64] {};
    int number = 0;
    char mode[16] {};
    char log[256] {};
};

/// False without an order.
bool readAnyOrder(Order* order)
{
    const char* text = std::getenv("UIUTILS_FAULT");
    return text
            && std::sscanf(text, "%63[^:]:%d:%15[^:]:%255[^\n]", order->program, &order->number, order->mode, order->log)
            == 4;
}

bool isMeantHere(const Order& order)
{
    return std::strcmp(order.program, program_invocation_short_name) == 0;
}

/// False without an order for this program.
bool readOrder(Order* order)
{
    return readAnyOrder(order) && isMeantHere(*order);
}

/// A file with a name: others are in memory. The loader too closes files that are read, without calling this.
bool isWrittenFile(int fd)
{
    struct stat status = {};
    return ::fstat(fd, &status) == 0 && S_ISREG(status.st_mode) && status.st_nlink > 0
            && (::fcntl(fd, F_GETFL) & O_ACCMODE) != O_RDONLY;
}

ssize_t writeTo(int fd, const void* data, size_t size)
{
    return ::syscall(SYS_write, fd, data, size);
}

/// Empty for a descriptor without a file.
void readPath(int fd, char (&path)[512])
{
    char link[32];
    std::snprintf(link, sizeof link, "/proc/self/fd/%d", fd);
    const ssize_t length = ::readlink(link, path, sizeof path - 1);
    path[length > 0 ? length : 0] = '\0';
}

/// Shows the script that the fault was injected in the right place.
void note(const Order& order, const char* path)
{
    const int log = int(::syscall(SYS_openat, AT_FDCWD, order.log, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600));
    writeTo(log, path, std::strlen(path));
    ::syscall(SYS_close, log);
}

void noteFile(const Order& order, int fd)
{
    char path[512];
    readPath(fd, path);
    note(order, path);
}

std::atomic<int> writes {0};
std::atomic<int> closings {0};

bool isOfWrites(const Order& order)
{
    return std::strcmp(order.mode, "short") == 0 || std::strcmp(order.mode, "full") == 0;
}

bool isBelow(const char* path, const char* folder)
{
    const size_t length = folder ? std::strlen(folder) : 0;
    return length > 0 && std::strncmp(path, folder, length) == 0 && path[length] == '/';
}

std::atomic<int> changes {0};

/// Whether the access to the path must fail, because its disk is dead, or dies at this call.
bool isDead(const char* path, bool isChange = true)
{
    Order order;
    if (!readAnyOrder(&order) || std::strcmp(order.mode, "dead") != 0
            || !isBelow(path, std::getenv("UIUTILS_DEAD_FOLDER")))
        return false;
    // Seen by all processes.
    if (::access(order.log, F_OK) == 0)
        return true;
    if (!isChange || !isMeantHere(order) || ++changes < order.number)
        return false;
    note(order, path);
    return true;
}

bool isDead(int fd)
{
    char path[512];
    readPath(fd, path);
    return isDead(path);
}

/// The same for a name in an open folder.
bool isDead(int folder, const char* name, bool isChange = true)
{
    char path[512] {};
    if (folder == AT_FDCWD || *name == '/')
        return isDead(name, isChange);
    readPath(folder, path);
    const size_t length = std::strlen(path);
    std::snprintf(path + length, sizeof path - length, "/%s", name);
    return isDead(path, isChange);
}

/// A function that replaces one of the system calls that one, unless its disk is dead.
template<typename Function, typename... Arguments>
int unlessDead(bool isDead, const char* name, Arguments... arguments)
{
    if (!isDead)
        return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name))(arguments...);
    errno = EIO;
    return -1;
}

bool isChange(int flags)
{
    return (flags & O_ACCMODE) != O_RDONLY || (flags & (O_CREAT | O_TRUNC)) != 0;
}

} // namespace

#define UIUTILS_INTERPOSE extern "C" __attribute__((visibility("default")))
#define UIUTILS_UNLESS(condition, name, ...) unlessDead<decltype(&::name)>(condition, #name, __VA_ARGS__)

#define UIUTILS_CALL(name, parameters, condition, ...)                                                                            \
    UIUTILS_INTERPOSE int name parameters                                                                                         \
    {                                                                                                                             \
        return UIUTILS_UNLESS(condition, name, __VA_ARGS__);                                                                      \
    }

// The mode is the argument after the flags, if there is one; without it the system ignores it.
#define UIUTILS_OPEN(name)                                                                                                       \
    UIUTILS_INTERPOSE int name(const char* path, int flags, ...)                                                                 \
    {                                                                                                                            \
        va_list rest;                                                                                                            \
        va_start(rest, flags);                                                                                                   \
        const mode_t mode = va_arg(rest, mode_t);                                                                                \
        va_end(rest);                                                                                                            \
        return UIUTILS_UNLESS(isDead(path, isChange(flags)), name, path, flags, mode);                                           \
    }
#define UIUTILS_OPENAT(name)                                                                                                     \
    UIUTILS_INTERPOSE int name(int folder, const char* path, int flags, ...)                                                     \
    {                                                                                                                            \
        va_list rest;                                                                                                            \
        va_start(rest, flags);                                                                                                   \
        const mode_t mode = va_arg(rest, mode_t);                                                                                \
        va_end(rest);                                                                                                            \
        return UIUTILS_UNLESS(isDead(folder, path, isChange(flags)), name, folder, path, flags, mode);                                   \
    }

UIUTILS_OPEN(open)
UIUTILS_OPEN(open64)
UIUTILS_OPENAT(openat)
UIUTILS_OPENAT(openat64)

UIUTILS_CALL(mkdir, (const char* path, mode_t mode) noexcept, isDead(path), path, mode)
UIUTILS_CALL(mkdirat, (int folder, const char* path, mode_t mode) noexcept, isDead(folder, path), folder, path, mode)
UIUTILS_CALL(rename, (const char* from, const char* to) noexcept, isDead(from), from, to)
UIUTILS_CALL(renameat2, (int folder, const char* from, int newFolder, const char* to, unsigned flags) noexcept, isDead(from),
        folder, from, newFolder, to, flags)
UIUTILS_CALL(unlink, (const char* path) noexcept, isDead(path), path)
UIUTILS_CALL(unlinkat, (int folder, const char* path, int flags) noexcept, isDead(folder, path), folder, path, flags)
UIUTILS_CALL(rmdir, (const char* path) noexcept, isDead(path), path)
UIUTILS_CALL(fsync, (int fd), isDead(fd), fd)
UIUTILS_CALL(fchmod, (int fd, mode_t mode) noexcept, isDead(fd), fd, mode)

UIUTILS_INTERPOSE ssize_t write(int fd, const void* data, size_t size)
{
    if (isWrittenFile(fd) && isDead(fd)) {
        errno = EIO;
        return -1;
    }
    Order order;
    if (!readOrder(&order) || !isOfWrites(order) || !isWrittenFile(fd))
        return writeTo(fd, data, size);
    const int number = ++writes;
    if (number > order.number && std::strcmp(order.mode, "full") == 0) {
        errno = ENOSPC;
        return -1;
    }
    if (number != order.number)
        return writeTo(fd, data, size);
    noteFile(order, fd);
    return writeTo(fd, data, (size + 1) / 2);
}

UIUTILS_INTERPOSE int close(int fd)
{
    Order order;
    const bool isMeant = readOrder(&order) && std::atoi(order.mode) > 0 && isWrittenFile(fd) && ++closings == order.number;
    if (isMeant)
        noteFile(order, fd);
    const int result = int(::syscall(SYS_close, fd));
    if (!isMeant || result != 0)
        return result;
    errno = std::atoi(order.mode);
    return -1;
}
