#include "desk.h"

#include "diskspace.h"

#include <embedded/embeddedbackend.h>
#include <embedded/embeddedservice.h>

#include <sys/resource.h>

#include <csignal>

namespace uiutils::demo {

using kiv::embedded::EmbeddedBackend;
using kiv::embedded::EmbeddedService;

namespace {

EmbeddedBackend* backend()
{
    return dynamic_cast<EmbeddedBackend*>(KIVBackend::current());
}

EmbeddedService* serviceOf(const QString& name)
{
    return backend() ? backend()->service(name) : nullptr;
}

/// Files of this process may not grow beyond `bytes`.
void limitFiles(rlim_t bytes)
{
    struct rlimit limit = {};
    if (::getrlimit(RLIMIT_FSIZE, &limit) != 0)
        return;
    limit.rlim_cur = qMin(bytes, limit.rlim_max);
    ::setrlimit(RLIMIT_FSIZE, &limit);
}

void keep(QSet<QString>* names, const QString& name, bool isKept)
{
    if (isKept)
        names->insert(name);
    else
        names->remove(name);
}

} // namespace

Desk::Desk(QObject* parent)
    : QObject(parent)
{
}

Desk::~Desk()
{
    setDiskFull(false);
    const QSet<QString> away = m_away;
    const QSet<QString> slow = m_slow;
    for (const QString& service : away)
        setAway(service, false);
    for (const QString& service : slow)
        setSlow(service, false);
}

QStringList Desk::services() const
{
    return backend() ? backend()->serviceNames() : QStringList();
}

void Desk::setDiskFull(bool isFull)
{
    if (isFull == m_isDiskFull)
        return;
    m_isDiskFull = isFull;
    // The signal would end the process; without it, the write fails.
    std::signal(SIGXFSZ, isFull ? SIG_IGN : SIG_DFL);
    limitFiles(isFull ? 0 : RLIM_INFINITY);
    showNoSpace(isFull);
    Q_EMIT diskFullChanged();
}

void Desk::setAway(const QString& service, bool isAway)
{
    EmbeddedService* const target = serviceOf(service);
    if (!target || m_away.contains(service) == isAway)
        return;
    keep(&m_away, service, isAway);
    target->setReachable(!isAway);
    Q_EMIT servicesChanged();
}

void Desk::setSlow(const QString& service, bool isSlow)
{
    EmbeddedService* const target = serviceOf(service);
    if (!target || m_slow.contains(service) == isSlow)
        return;
    keep(&m_slow, service, isSlow);
    target->setDelay(isSlow ? slowness : 0);
    Q_EMIT servicesChanged();
}

} // namespace uiutils::demo
