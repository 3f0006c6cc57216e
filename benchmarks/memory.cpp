#include "memory.h"

#include "childprocess.h"

#include <QByteArray>
#include <QFile>

#include <cmath>
#include <malloc.h>

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

} // namespace

double heapBytes()
{
    const struct mallinfo2 heap = mallinfo2();
    return double(heap.uordblks) + double(heap.hblkhd);
}

qint64 peakHere()
{
    return statusBytes("VmHWM");
}

qint64 growthHere(const std::function<void()>& run)
{
    QFile peak(QStringLiteral("/proc/self/clear_refs"));
    if (!peak.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || peak.write("5") != 1)
        return -1;
    const qint64 before = statusBytes("VmRSS");
    run();
    const qint64 after = statusBytes("VmHWM");
    return before < 0 || after < 0 ? -1 : after - before;
}

qint64 peakGrowth(const std::function<void()>& run)
{
    return peakGrowth([] {}, run);
}

qint64 peakGrowth(const std::function<void()>& prepare, const std::function<void()>& run)
{
    const double growth = inChild([&] {
        prepare();
        return double(growthHere(run));
    });
    return std::isnan(growth) ? -1 : qint64(growth);
}

qint64 heapGrowth(const std::function<void()>& prepare, const std::function<void()>& run)
{
    const double growth = inChild([&] {
        prepare();
        const double before = heapBytes();
        run();
        return heapBytes() - before;
    });
    return std::isnan(growth) ? -1 : qint64(growth);
}

} // namespace bench
