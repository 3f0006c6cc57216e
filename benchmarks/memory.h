#pragma once

#include <QtGlobal>

#include <functional>

namespace bench {

/// By how many bytes the resident memory of a fresh child process grows at the most while `run` runs in it; -1 when
/// the system does not tell.
qint64 peakGrowth(const std::function<void()>& run);

} // namespace bench
