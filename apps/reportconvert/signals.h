#pragma once

#include <poll.h>
#include <vector>

namespace uiutils::convert {

/// Blocks SIGINT, SIGTERM and SIGHUP, unless the caller ignores them, so that no file is half-written. A reader that
/// closes its end and a file above the caller's size limit become errors of the write. Call it before any thread
/// starts.
void holdSignals();

/// The number of a signal that is waiting, or 0.
int pendingSignal();

/// Waits until one of the descriptors is ready for its events of poll(); false when a signal came first.
bool waitForAny(std::vector<pollfd>& descriptors);

/// Waits until `fd` is ready for `events` of poll(); false when a signal came first.
bool waitFor(int fd, short events);

} // namespace uiutils::convert
