#include "ui_host/busplatform_p.h"

#include "ui_host/describedservices_p.h"

#include <bus/busbackend.h>
#include <bus/buspublisher.h>
#include <embedded/embeddedbackend.h>

#include <QCoreApplication>

namespace uiutils {

using kiv::bus::BusBackend;
using kiv::bus::BusPublisher;
using kiv::embedded::EmbeddedBackend;
using kiv::embedded::EmbeddedService;

namespace {

/// How long a start waits for services in other processes; slower ones are added when they come.
constexpr int startTimeoutMs = 3000;

class BusPlatform final : public ServicePlatform
{
public:
    bool begin(const HostSetup& setup, QStringList* problems)
    {
        publishOwn(setup, problems);
        m_bus = std::make_unique<BusBackend>();
        connect(m_bus.get(), &BusBackend::serviceAppeared, this, &ServicePlatform::serviceAppeared);
        m_bus->startServices();
        if (!m_bus->waitForServices(startTimeoutMs) && !m_bus->problem().isEmpty()) {
            *problems += m_bus->problem();
            return false;
        }
        if (m_bus->serviceNames().isEmpty())
            *problems += QCoreApplication::translate(
                    "Host", "There is no service on the bus yet. Start kivd; its services are shown when they come.");
        return true;
    }
    QStringList serviceNames() const override { return m_bus->serviceNames(); }
    EmbeddedService* ownService(const QString& name) const override
    {
        return m_publisher ? m_own.service(name) : nullptr;
    }

private:
    void publishOwn(const HostSetup& setup, QStringList* problems)
    {
        if (setup.ownServices.isEmpty() || !loadServices(m_own, setup.serviceFolders, setup.root, problems))
            return;
        m_publisher = std::make_unique<BusPublisher>();
        const QStringList described = m_own.serviceNames();
        for (const QString& name : described) {
            QString problem;
            if (!setup.ownServices.contains(name))
                m_own.withdraw(name);
            else if (!m_publisher->publish(m_own.service(name), &problem))
                *problems += problem;
        }
    }

    /// Holds the program's own services. Before the other back end, which then is the current one.
    EmbeddedBackend m_own;
    std::unique_ptr<BusPublisher> m_publisher;
    std::unique_ptr<BusBackend> m_bus;
};

} // namespace

std::unique_ptr<ServicePlatform> startBusPlatform(const HostSetup& setup, QStringList* problems)
{
    auto platform = std::make_unique<BusPlatform>();
    return platform->begin(setup, problems) ? std::move(platform) : nullptr;
}

} // namespace uiutils
