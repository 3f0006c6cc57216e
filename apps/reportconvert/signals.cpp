#include "signals.h"

#include "common/endingsignals.h"

#include <cerrno>
#include <csignal>

namespace uiutils::convert {

namespace {

// The signals that end a program from outside.
const int endingSignals[] = {SIGINT, SIGTERM, SIGHUP};

int signalDescriptor = -1;

} // namespace

void holdSignals()
{
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    // Becomes readable when a signal waits, and is never read: poll() can wait for both without a gap between them.
    signalDescriptor = apps::holdEndingSignals();
}

int pendingSignal()
{
    sigset_t pending;
    if (::sigpending(&pending) != 0)
        return 0;
    sigset_t held;
    ::pthread_sigmask(SIG_BLOCK, nullptr, &held);
    for (const int signal : endingSignals) {
        if (sigismember(&pending, signal) == 1 && sigismember(&held, signal) == 1)
            return signal;
    }
    return 0;
}

bool waitForAny(std::vector<pollfd>& descriptors)
{
    descriptors.push_back({signalDescriptor, POLLIN, 0});
    while (::poll(descriptors.data(), descriptors.size(), -1) < 0 && errno == EINTR) { }
    descriptors.pop_back();
    return pendingSignal() == 0;
}

bool waitFor(int fd, short events)
{
    std::vector<pollfd> waiting {{fd, events, 0}};
    return waitForAny(waiting);
}

} // namespace uiutils::convert
