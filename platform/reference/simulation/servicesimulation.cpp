#include "servicesimulation_p.h"

#include <embedded/embeddedservice.h>

#include <algorithm>

namespace kiv::simulation {

namespace {

/// A longer pause was a debugger's or a sleeping machine's: nobody wants to see what would have happened meanwhile.
constexpr qint64 longestDelayMs = 10 * 1000;

/// While slots run an event loop of their own, time goes on in steps of this length.
constexpr int nestedMs = 200;

} // namespace

ServiceSimulation::ServiceSimulation(embedded::EmbeddedService* service, const Plan& plan, bool isStill)
    : QObject(service)
{
    m_time.start();
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &ServiceSimulation::advance);
    const QPointer<ServiceSimulation> self(this);
    m_driver = std::make_shared<Driver>(service, plan, [self] { return self ? self->now() : 0; });
    m_driver->dueChanged = [self] {
        if (self)
            self->arm();
    };
    m_driver->begin(isStill);
    arm();
}

ServiceSimulation::~ServiceSimulation() = default;

void ServiceSimulation::advance()
{
    const auto driver = m_driver;
    const QPointer<ServiceSimulation> self(this);
    m_pause += std::max<qint64>(0, now() - driver->due() - longestDelayMs);
    m_timer.start(nestedMs);
    driver->advance();
    if (self)
        arm();
}

void ServiceSimulation::arm()
{
    const qint64 due = m_driver->due();
    if (due == never)
        m_timer.stop();
    else
        m_timer.start(int(std::clamp<qint64>(due - now(), 0, std::numeric_limits<int>::max())));
}

} // namespace kiv::simulation
