#include "common/endingsignals.h"

#include <csignal>
#include <initializer_list>
#include <sys/signalfd.h>

namespace uiutils::apps {

namespace {

/// Blocked, a signal that is ignored would become pending all the same.
bool isIgnored(int signal)
{
    struct sigaction action = {};
    return ::sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

} // namespace

int holdEndingSignals()
{
    sigset_t held;
    sigemptyset(&held);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        if (!isIgnored(signal))
            sigaddset(&held, signal);
    }
    ::pthread_sigmask(SIG_BLOCK, &held, nullptr);
    return ::signalfd(-1, &held, SFD_CLOEXEC | SFD_NONBLOCK);
}

} // namespace uiutils::apps
