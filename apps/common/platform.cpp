#include "common/platform.h"

#include "common/complaint.h"
#include "common/startup.h"

#include <bus/busbackend.h>
#include <bus/buspublisher.h>
#include <embedded/embeddedbackend.h>

#include <QCoreApplication>

namespace uiutils::apps {

using kiv::bus::BusBackend;
using kiv::bus::BusPublisher;
using kiv::embedded::EmbeddedBackend;
using kiv::embedded::EmbeddedService;

namespace {

/// How long a start waits for services in other processes; slower ones are added when they come.
constexpr int startTimeoutMs = 3000;

class EmbeddedPlatform final : public Platform
{
public:
    bool begin(const ServiceSetup& setup) { return loadServices(m_backend, setup.serviceFolders, setup.root); }
    QStringList serviceNames() const override { return m_backend.serviceNames(); }
    EmbeddedService* ownService(const QString& name) const override { return m_backend.service(name); }

private:
    EmbeddedBackend m_backend;
};

class BusPlatform final : public Platform
{
public:
    bool begin(const ServiceSetup& setup)
    {
        publishOwn(setup);
        m_bus = std::make_unique<BusBackend>();
        connect(m_bus.get(), &BusBackend::serviceAppeared, this, &Platform::serviceAppeared);
        m_bus->startServices();
        if (!m_bus->waitForServices(startTimeoutMs) && !m_bus->problem().isEmpty()) {
            complain(m_bus->problem());
            return false;
        }
        if (m_bus->serviceNames().isEmpty())
            complain(QCoreApplication::translate("CommandLine",
                    "There is no service on the bus yet. Start kivd; its services are shown when they come."));
        return true;
    }
    QStringList serviceNames() const override { return m_bus->serviceNames(); }
    EmbeddedService* ownService(const QString& name) const override
    {
        return m_publisher ? m_own.service(name) : nullptr;
    }

private:
    void publishOwn(const ServiceSetup& setup)
    {
        if (setup.ownServices.isEmpty() || !loadServices(m_own, setup.serviceFolders, setup.root))
            return;
        m_publisher = std::make_unique<BusPublisher>();
        const QStringList described = m_own.serviceNames();
        for (const QString& name : described) {
            QString problem;
            if (!setup.ownServices.contains(name))
                m_own.withdraw(name);
            else if (!m_publisher->publish(m_own.service(name), &problem))
                complain(problem);
        }
    }

    /// Holds the program's own services. Before the other back end, which then is the current one.
    EmbeddedBackend m_own;
    std::unique_ptr<BusPublisher> m_publisher;
    std::unique_ptr<BusBackend> m_bus;
};

template<class Chosen> std::unique_ptr<Platform> begun(const ServiceSetup& setup)
{
    auto platform = std::make_unique<Chosen>();
    return platform->begin(setup) ? std::move(platform) : nullptr;
}

} // namespace

std::optional<PlatformKind> chosenPlatform(PlatformKind standard, QString* problem)
{
    const QString name = qEnvironmentVariable("KIV_PLATFORM");
    if (!qEnvironmentVariableIsSet("KIV_PLATFORM"))
        return standard;
    if (name == QLatin1String("bus"))
        return PlatformKind::Bus;
    if (name == QLatin1String("embedded"))
        return PlatformKind::Embedded;
    *problem = QCoreApplication::translate(
            "CommandLine", "KIV_PLATFORM is \"%1\". Set it to \"embedded\" or \"bus\", or leave it out.")
                       .arg(name);
    return std::nullopt;
}

std::unique_ptr<Platform> Platform::start(const ServiceSetup& setup)
{
    QString problem;
    const std::optional<PlatformKind> kind = chosenPlatform(PlatformKind::Embedded, &problem);
    if (kind == PlatformKind::Bus)
        return begun<BusPlatform>(setup);
    if (kind == PlatformKind::Embedded)
        return begun<EmbeddedPlatform>(setup);
    complain(problem);
    return nullptr;
}

} // namespace uiutils::apps
