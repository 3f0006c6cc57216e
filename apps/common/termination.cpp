#include "common/termination.h"

#include <QSocketNotifier>

#include <csignal>
#include <sys/signalfd.h>
#include <unistd.h>

namespace uiutils::apps {

namespace {

bool isIgnored(int signal)
{
    struct sigaction action = {};
    return ::sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

} // namespace

Termination::Termination(QObject* parent)
    : QObject(parent)
{
    sigset_t held;
    sigemptyset(&held);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        if (!isIgnored(signal))
            sigaddset(&held, signal);
    }
    ::pthread_sigmask(SIG_BLOCK, &held, nullptr);
    m_descriptor = ::signalfd(-1, &held, SFD_CLOEXEC | SFD_NONBLOCK);
    m_notifier = new QSocketNotifier(m_descriptor, QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, &Termination::read);
}

Termination::~Termination()
{
    delete m_notifier;
    ::close(m_descriptor);
}

void Termination::read()
{
    signalfd_siginfo info {};
    if (::read(m_descriptor, &info, sizeof(info)) == ssize_t(sizeof(info)))
        Q_EMIT requested();
}

} // namespace uiutils::apps
