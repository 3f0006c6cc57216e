// Preloaded: one write of the process takes a part only of what it is given, as disks and sticks do when they fill up.
//
// UIUTILS_SHORT_WRITE is "PROGRAM:NUMBER:MODE:LOG": of the program's writes to files, counted from 1 since the variable was
// set, that one takes half. In the mode "full" every later one fails, as on a disk with no room left. The file LOG then names
// what was written to.

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
    const char* text = std::getenv("UIUTILS_SHORT_WRITE");
    return text
            && std::sscanf(text, "%63[^:]:%d:%15[^:]:%255[^\n]", order->program, &order->number, order->mode, order->log)
            == 4
            && std::strcmp(order->program, program_invocation_short_name) == 0;
}

bool isFile(int fd)
{
    struct stat status {};
    return ::fstat(fd, &status) == 0 && S_ISREG(status.st_mode);
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
    ::close(log);
}

std::atomic<int> count {0};

} // namespace

extern "C" __attribute__((visibility("default"))) ssize_t write(int fd, const void* data, size_t size)
{
    Order order;
    if (!readOrder(&order) || !isFile(fd))
        return writeTo(fd, data, size);
    const int number = ++count;
    if (number > order.number && std::strcmp(order.mode, "full") == 0) {
        errno = ENOSPC;
        return -1;
    }
    if (number != order.number)
        return writeTo(fd, data, size);
    note(order, fd);
    return writeTo(fd, data, (size + 1) / 2);
}
