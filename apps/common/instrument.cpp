#include "common/instrument.h"

#include "common/locations.h"

#include "service/kivdata.h"
#include "service/manifest.h"

#include <embedded/embeddedbackend.h>
#include <kiv/kivclientinterface.h>

#include <QQmlContext>
#include <QQmlEngine>

namespace uiutils::apps {

using kiv::embedded::EmbeddedBackend;
using kiv::embedded::EmbeddedService;

namespace {

/// The beginning of the names of a service's items: the last part of a name such as "com.example.test", because QML
/// names contain no points.
QString tagOf(const QString& service)
{
    return service.section(QLatin1Char('.'), -1);
}

} // namespace

std::unique_ptr<Instrument> Instrument::start(const ServiceSetup& setup)
{
    std::unique_ptr<Instrument> instrument(new Instrument);
    instrument->m_platform = Platform::start(setup);
    if (!instrument->m_platform)
        return nullptr;
    const QStringList names = instrument->m_platform->serviceNames();
    for (const QString& name : names)
        instrument->add(name);
    connect(instrument->m_platform.get(), &Platform::serviceAppeared, instrument.get(), &Instrument::add);
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
