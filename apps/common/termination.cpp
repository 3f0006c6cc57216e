#include "common/termination.h"

#include "common/endingsignals.h"

#include <QSocketNotifier>

#include <sys/signalfd.h>
#include <unistd.h>

namespace uiutils::apps {

Termination::Termination(QObject* parent)
    : QObject(parent)
    , m_descriptor(holdEndingSignals())
{
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
