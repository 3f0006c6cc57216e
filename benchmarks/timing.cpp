#include "timing.h"

#include <algorithm>
#include <ctime>

namespace bench {

double cpuMilliseconds()
{
    timespec now {};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return double(now.tv_sec) * 1e3 + double(now.tv_nsec) / 1e6;
}

double median(QVector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

double measured(const std::function<void()>& run)
{
    const double before = cpuMilliseconds();
    run();
    return cpuMilliseconds() - before;
}

Timing interleaved(int runs, const std::function<void()>& ours, const std::function<void()>& floor)
{
    return interleavedParts(
            runs, [&] { return measured(ours); }, [&] { return measured(floor); });
}

Timing interleavedParts(int runs, const std::function<double()>& ours, const std::function<double()>& floor)
{
    ours();
    floor();
    QVector<double> oursTimes;
    QVector<double> floorTimes;
    for (int run = 0; run < runs; ++run) {
        oursTimes += ours();
        floorTimes += floor();
    }
    return {median(oursTimes), median(floorTimes)};
}

} // namespace bench
