#include "embeddedclient_p.h"

#include "embeddedservice.h"

namespace kiv::embedded {

EmbeddedClient::EmbeddedClient(EmbeddedService* service, QObject* parent)
    : KIVClientInterface(parent)
    , m_service(service)
    , m_serviceName(service->name())
{
}

QStringList EmbeddedClient::getItemIds(const QString& prefix) const
{
    return m_service ? m_service->itemIds(prefix) : QStringList();
}

KIVClientItem* EmbeddedClient::getItem(const QString& id) const
{
    return m_service ? m_service->item(id) : nullptr;
}

} // namespace kiv::embedded
