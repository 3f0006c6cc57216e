// Preloaded: what no tracer can do to one call of a process.
//
// UIUTILS_FAULT is "PROGRAM:NUMBER:MODE:LOG", where NUMBER counts calls on files that are written since the variable was set, from 1. In the mode
// "short" that write() takes half of what it is given; in the mode "full" so, too, and every later one fails, as when a disk fills
// up; a number of an error as the mode has that close() report it after it has closed, as the system does. The file LOG
// then names what it was done to.

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
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

/// False without an order for this program.
bool readOrder(Order* order)
{
    const char* text = std::getenv("UIUTILS_FAULT");
    return text
            && std::sscanf(text, "%63[^:]:%d:%15[^:]:%255[^\n]", order->program, &order->number, order->mode, order->log)
            == 4
            && std::strcmp(order->program, program_invocation_short_name) == 0;
}

/// A file with a name: others are memory. Files that are read are closed by the loader as well, which calls nothing of this.
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

/// What lets the script see that the fault was where it was meant to be.
void note(const Order& order, int fd)
{
    char link[32];
    char path[256];
    std::snprintf(link, sizeof link, "/proc/self/fd/%d", fd);
    const ssize_t length = ::readlink(link, path, sizeof path);
    const int log = ::open(order.log, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    if (length > 0)
        writeTo(log, path, size_t(length));
    ::syscall(SYS_close, log);
}

std::atomic<int> writes {0};
std::atomic<int> closings {0};

bool isOfWrites(const Order& order)
{
    return std::strcmp(order.mode, "short") == 0 || std::strcmp(order.mode, "full") == 0;
}

} // namespace

extern "C" __attribute__((visibility("default"))) ssize_t write(int fd, const void* data, size_t size)
{
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
    note(order, fd);
    return writeTo(fd, data, (size + 1) / 2);
}

extern "C" __attribute__((visibility("default"))) int close(int fd)
{
    Order order;
    const bool isMeant = readOrder(&order) && !isOfWrites(order) && isWrittenFile(fd) && ++closings == order.number;
    if (isMeant)
        note(order, fd);
    const int result = int(::syscall(SYS_close, fd));
    if (!isMeant || result != 0)
        return result;
    errno = std::atoi(order.mode);
    return -1;
}
