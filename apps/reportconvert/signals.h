#pragma once

namespace uiutils::convert {

/// Holds back SIGINT, SIGTERM and SIGHUP, unless the caller had them ignored, so that no file is left
/// half-written. A reader that goes away and a file that outgrows the caller's limit become errors of the
/// write. Call it before any thread starts.
void holdSignals();

/// The number of a signal that is waiting, or 0.
int pendingSignal();

/// Waits until `fd` is ready for `events` of poll(); false when a signal came first.
bool waitFor(int fd, short events);

} // namespace uiutils::convert
