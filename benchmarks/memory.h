#pragma once

#include <QtGlobal>

#include <functional>

namespace bench {

/// What this process holds of the heap, in bytes.
double heapBytes();

/// By how many bytes the resident memory of a fresh child process grows at the most while `run` runs in it; -1 when
/// the system does not tell.
qint64 peakGrowth(const std::function<void()>& run);

/// The most memory that this process has had resident since its start, in bytes; -1 when the system does not tell.
qint64 peakHere();

/// The growth of peakGrowth() in this process.
qint64 growthHere(const std::function<void()>& run);

/// The same behind `prepare`, which a child that shares no code pages with anybody yet may need.
qint64 peakGrowth(const std::function<void()>& prepare, const std::function<void()>& run);

/// By how many bytes what the program holds of the heap has grown when `run` has run behind `prepare` in a fresh child
/// process; -1 when there is no answer. Exact to the byte, but blind to what was freed meanwhile.
qint64 heapGrowth(const std::function<void()>& prepare, const std::function<void()>& run);

} // namespace bench
