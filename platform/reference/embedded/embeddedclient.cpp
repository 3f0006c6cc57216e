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

bool EmbeddedClient::setItem(const QString& id, const QVariant& value)
{
    m_lastError.clear();
    const bool isTaken = m_service && id.startsWith(QLatin1String(":config:")) && m_service->setValue(id, value);
    if (!isTaken)
        m_lastError = tr("%1 cannot be set.").arg(id);
    return isTaken;
}

bool EmbeddedClient::sendAction(const QString& id, const QString&, QString*, int)
{
    return invokeAction(id);
}

bool EmbeddedClient::invokeAction(const QString& id)
{
    m_lastError = tr("There is no action %1.").arg(id);
    return false;
}

} // namespace kiv::embedded
