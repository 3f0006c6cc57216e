#include "memory.h"

#include <QByteArray>
#include <QFile>

#include <malloc.h>
#include <sys/wait.h>
#include <unistd.h>

namespace bench {

namespace {

/// A figure of /proc/self/status in bytes, or -1.
qint64 statusBytes(const char* field)
{
    QFile file(QStringLiteral("/proc/self/status"));
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    const QList<QByteArray> lines = file.readAll().split('\n');
    for (const QByteArray& line : lines) {
        if (line.startsWith(field))
            return line.mid(int(qstrlen(field)) + 1).simplified().split(' ').first().toLongLong() * 1024;
    }
    return -1;
}

qint64 growthHere(const std::function<void()>& run)
{
    malloc_trim(0);
    QFile peak(QStringLiteral("/proc/self/clear_refs"));
    if (!peak.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || peak.write("5") != 1)
        return -1;
    const qint64 before = statusBytes("VmRSS");
    run();
    const qint64 after = statusBytes("VmHWM");
    return before < 0 || after < 0 ? -1 : after - before;
}

} // namespace

qint64 peakGrowth(const std::function<void()>& run)
{
    int ends[2];
    if (::pipe(ends) != 0)
        return -1;
    const pid_t child = ::fork();
    if (child < 0)
        return -1;
    if (child == 0) {
        const qint64 growth = growthHere(run);
        const bool told = ::write(ends[1], &growth, sizeof growth) == sizeof growth;
        ::_exit(told ? 0 : 1);
    }
    qint64 growth = -1;
    if (::read(ends[0], &growth, sizeof growth) != sizeof growth)
        growth = -1;
    ::close(ends[0]);
    ::close(ends[1]);
    ::waitpid(child, nullptr, 0);
    return growth;
}

} // namespace bench
