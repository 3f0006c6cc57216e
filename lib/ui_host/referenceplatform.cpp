// The services of the reference platform; an instrument's are in instrumentplatform.cpp.

#include "base/root_p.h"
#include "ui_host/describedservices_p.h"
#include "ui_host/namedservices_p.h"
#include "ui_host/serviceplatform_p.h"

#include <bus/busbackend.h>
#include <bus/buspublisher.h>
#include <embedded/embeddedbackend.h>
#include <embedded/servicefilewatch.h>

#include <QCoreApplication>

namespace uiutils {

using kiv::bus::BusBackend;
using kiv::bus::BusPublisher;
using kiv::embedded::EmbeddedBackend;
using kiv::embedded::EmbeddedService;
using kiv::embedded::ServiceFileWatch;

namespace {

/// How long a start waits for services in other processes; slower ones are added when they come.
constexpr int startTimeoutMs = 3000;

class EmbeddedPlatform final : public ServicePlatform
{
public:
    bool begin(const HostSetup& setup, QStringList* problems)
    {
        m_folders = setup.serviceFolders;
        return loadServices(m_backend, m_folders, setup.root, problems);
    }
    QStringList serviceNames() const override { return m_backend.serviceNames(); }
    EmbeddedService* ownService(const QString& name) const override { return m_backend.service(name); }
    void followFiles() override
    {
        m_watch = std::make_unique<ServiceFileWatch>(&m_backend, m_folders);
        connect(m_watch.get(), &ServiceFileWatch::serviceAdded, this, &ServicePlatform::serviceAppeared);
        connect(m_watch.get(), &ServiceFileWatch::filesRead, this, &ServicePlatform::filesRead);
    }

private:
    QStringList m_folders;
    EmbeddedBackend m_backend;
    std::unique_ptr<ServiceFileWatch> m_watch;
};

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

template<class Chosen, class Setup> std::unique_ptr<ServicePlatform> begun(const Setup& setup, QStringList* problems)
{
    auto platform = std::make_unique<Chosen>();
    return platform->begin(setup, problems) ? std::move(platform) : nullptr;
}

} // namespace

HostSetup ServicePlatform::completed(HostSetup setup)
{
    if (setup.root.isEmpty())
        setup.root = defaultRoot(QCoreApplication::applicationName());
    if (setup.serviceFolders.isEmpty())
        setup.serviceFolders = defaultServiceFolders();
    return setup;
}

std::unique_ptr<ServicePlatform> ServicePlatform::start(const HostSetup& setup, QStringList* problems)
{
    if (!setup.services.isEmpty())
        return begun<NamedServices>(setup.services, problems);
    QString problem;
    const std::optional<PlatformKind> kind = chosenPlatform(PlatformKind::Embedded, &problem);
    if (kind == PlatformKind::Bus)
        return begun<BusPlatform>(setup, problems);
    if (kind == PlatformKind::Embedded)
        return begun<EmbeddedPlatform>(setup, problems);
    *problems += problem;
    return nullptr;
}

} // namespace uiutils
