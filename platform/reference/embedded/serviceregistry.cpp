#include "serviceregistry_p.h"

#include "embeddedclient_p.h"
#include "servicedata_p.h"

namespace kiv::embedded {

ServicePlace::ServicePlace(const QString& name, QObject* parent)
    : QObject(parent)
    , m_name(name)
    , m_sharedClient(new EmbeddedClient(this, this))
{
}

void ServicePlace::publish(EmbeddedService* service, const QString& file)
{
    m_service = service;
    m_file = file;
    connect(service, &EmbeddedService::itemsChanged, this, &ServicePlace::itemsChanged);
    connect(service, &EmbeddedService::errorReported, this, &ServicePlace::errorReported);
    Q_EMIT itemsChanged();
}

void ServicePlace::withdraw()
{
    // A failed write is reported, and a slot may remove the service first.
    const QPointer<ServicePlace> self(this);
    if (m_service && ServiceData::of(*m_service).keeper)
        ServiceData::of(*m_service).keeper->flush();
    if (!self || !m_service)
        return;
    EmbeddedService* service = m_service;
    const bool wasReachable = service->isReachable();
    m_service = nullptr;
    service->disconnect(this);
    delete service;
    if (self && wasReachable)
        Q_EMIT itemsChanged();
}

ServicePlace* ServiceRegistry::makePlace(const QString& name)
{
    ServicePlace*& place = m_places[name];
    if (!place)
        place = new ServicePlace(name, this);
    return place;
}

QVector<EmbeddedService*> ServiceRegistry::services() const
{
    QVector<EmbeddedService*> services;
    for (const ServicePlace* place : m_places) {
        if (place->service())
            services += place->service();
    }
    return services;
}

QStringList ServiceRegistry::names() const
{
    QStringList names;
    for (const ServicePlace* place : m_places) {
        if (place->service())
            names += place->name();
    }
    return names;
}

} // namespace kiv::embedded
