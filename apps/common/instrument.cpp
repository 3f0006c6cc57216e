#include "common/instrument.h"

#include "common/complaint.h"
#include "common/locations.h"
#include "common/startup.h"

#include "service/kivdata.h"
#include "service/manifest.h"

#include <bus/busbackend.h>
#include <bus/buspublisher.h>
#include <embedded/embeddedbackend.h>
#include <kiv/kivclientinterface.h>

#include <QCoreApplication>
#include <QQmlContext>
#include <QQmlEngine>

namespace uiutils::apps {

using kiv::bus::BusBackend;
using kiv::bus::BusPublisher;
using kiv::embedded::EmbeddedBackend;
using kiv::embedded::EmbeddedService;

namespace {

/// How long a start waits for services in other processes; those that are slower are added when they come.
constexpr int startTimeoutMs = 3000;

/// The beginning of the names of a service's items: the last part of a name such as "com.example.test", because QML
/// names contain no points.
QString tagOf(const QString& service)
{
    return service.section(QLatin1Char('.'), -1);
}

} // namespace

// --- Platforms -----------------------------------------------------------------------------------

class Instrument::Platform
{
public:
    Platform() = default;
    virtual ~Platform() = default;
    Q_DISABLE_COPY_MOVE(Platform)

    /// Returns false, having complained, when there are no services.
    virtual bool start(const InstrumentSetup& setup) = 0;
    virtual QStringList serviceNames() const = 0;
    virtual EmbeddedService* ownService(const QString& name) const = 0;
    /// Lets the instrument hear of services that come later.
    virtual void follow(Instrument* instrument) = 0;
};

class Instrument::EmbeddedPlatform final : public Platform
{
public:
    bool start(const InstrumentSetup& setup) override
    {
        return loadServices(m_backend, setup.serviceFolders, setup.root);
    }
    QStringList serviceNames() const override { return m_backend.serviceNames(); }
    EmbeddedService* ownService(const QString& name) const override { return m_backend.service(name); }
    void follow(Instrument*) override { }

private:
    EmbeddedBackend m_backend;
};

class Instrument::BusPlatform final : public Platform
{
public:
    bool start(const InstrumentSetup& setup) override
    {
        publishOwn(setup);
        m_bus = std::make_unique<BusBackend>();
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
    void follow(Instrument* instrument) override
    {
        QObject::connect(m_bus.get(), &BusBackend::serviceAppeared, instrument, &Instrument::add);
    }

private:
    void publishOwn(const InstrumentSetup& setup)
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

// --- The instrument ------------------------------------------------------------------------------

std::unique_ptr<Instrument::Platform> Instrument::choosePlatform()
{
    const QString name = qEnvironmentVariable("KIV_PLATFORM", QStringLiteral("embedded"));
    if (name == QLatin1String("embedded"))
        return std::make_unique<EmbeddedPlatform>();
    if (name == QLatin1String("bus"))
        return std::make_unique<BusPlatform>();
    complain(QCoreApplication::translate(
            "CommandLine", "KIV_PLATFORM is \"%1\". Set it to \"embedded\" or \"bus\", or leave it out.")
                     .arg(name));
    return nullptr;
}

std::unique_ptr<Instrument> Instrument::start(const InstrumentSetup& setup)
{
    std::unique_ptr<Instrument> instrument(new Instrument);
    instrument->m_platform = choosePlatform();
    if (!instrument->m_platform || !instrument->m_platform->start(setup))
        return nullptr;
    const QStringList names = instrument->m_platform->serviceNames();
    for (const QString& name : names)
        instrument->add(name);
    instrument->m_platform->follow(instrument.get());
    return instrument;
}

Instrument::Instrument()
{
    QQmlEngine::setObjectOwnership(&m_byName, QQmlEngine::CppOwnership);
}

Instrument::Instrument(const EmbeddedBackend& backend)
    : Instrument()
{
    const QStringList names = backend.serviceNames();
    for (const QString& name : names)
        add(name);
}

Instrument::~Instrument()
{
    qDeleteAll(m_manifests);
}

void Instrument::add(const QString& service)
{
    auto* manifest = new Manifest(KIVClientInterface::getSessionBusClient(service), tagOf(service), service);
    QQmlEngine::setObjectOwnership(manifest, QQmlEngine::CppOwnership);
    m_manifests.append(manifest);
    m_byName.insert(service, QVariant::fromValue<QObject*>(manifest));
    // Pages that are there already learn the new names.
    if (m_engine)
        Manifest::setQmlContext(m_engine->rootContext());
}

void Instrument::showTo(QQmlEngine* engine)
{
    m_engine = engine;
    engine->addImportPath(qmlModuleFolder());
    engine->rootContext()->setContextProperty(QStringLiteral("services"), &m_byName);
    Manifest::setQmlContext(engine->rootContext());
}

EmbeddedService* Instrument::ownService(const QString& name) const
{
    return m_platform ? m_platform->ownService(name) : nullptr;
}

QStringList Instrument::listing() const
{
    QStringList lines;
    const QStringList ids = Manifest::getKivIds(QString(), QString());
    for (const QString& id : ids) {
        if (const KivData* item = Manifest::getKivData(id))
            lines.append(
                    QStringList {item->getQmlTag(), item->getType(), item->getValueString()}.join(QLatin1Char('\t')));
    }
    lines.sort();
    return lines;
}

} // namespace uiutils::apps
