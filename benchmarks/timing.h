#pragma once

#include <QVector>

#include <functional>

namespace bench {

struct Timing
{
    /// CPU milliseconds of this process: the median of the runs.
    double ours = 0;
    double floor = 0;
};

double median(QVector<double> values);

/// CPU milliseconds of this process so far.
double cpuMilliseconds();

/// CPU milliseconds of this process that `run` takes.
double measured(const std::function<void()>& run);

/// Runs the two in turn, once unmeasured and then `runs` times measured.
Timing interleaved(int runs, const std::function<void()>& ours, const std::function<void()>& floor);
/// The same for runs of which only a part counts: each tells what it measured.
Timing interleavedParts(int runs, const std::function<double()>& ours, const std::function<double()>& floor);

} // namespace bench
