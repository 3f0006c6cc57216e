#include "busclient_p.h"

#include "bustexts_p.h"
#include "remoteservice_p.h"

#include "base/servicetext_p.h"

namespace kiv::bus {

using embedded::Outcome;

BusClient::BusClient(RemoteService* service, QObject* parent)
    : KIVClientInterface(parent)
    , m_service(service)
    , m_serviceName(service->name())
{
    connect(service, &RemoteService::itemsChanged, this, &BusClient::itemsChanged);
    connect(service, &RemoteService::errorReported, this,
            [this](const QString& text) { Q_EMIT SigError(uiutils::translatedServiceText(text)); });
}

bool BusClient::isValid() const
{
    return m_service && m_service->isReachable();
}

QStringList BusClient::getItemIds(const QString& prefix) const
{
    return isValid() ? m_service->items().sortedIds(prefix) : QStringList();
}

bool BusClient::getItemList(const QString& service, QStringList* ids) const
{
    ids->clear();
    if (service != m_serviceName)
        return false;
    if (!isValid())
        return true;
    const QVector<embedded::ItemStore::StatePtr> states = m_service->items().inOrder();
    for (const embedded::ItemStore::StatePtr& state : states)
        *ids += state->description.id;
    return true;
}

KIVClientItem* BusClient::getItem(const QString& id) const
{
    return m_service ? m_service->object(id) : nullptr;
}

bool BusClient::setItem(const QString& id, const QVariant& value)
{
    const QPointer<BusClient> self(this);
    return remember(self, m_service ? m_service->setItem(id, value, callTimeout) : gone());
}

bool BusClient::sendAction(const QString& id, const QString& argument, QString* reply, int timeoutMs)
{
    const QPointer<BusClient> self(this);
    const Outcome outcome = m_service ? m_service->sendAction(id, argument, timeoutMs) : gone();
    if (outcome.isDone && reply)
        *reply = outcome.text;
    return remember(self, outcome);
}

bool BusClient::invokeAction(const QString& id)
{
    return sendAction(id, QString(), nullptr, callTimeout);
}

Outcome BusClient::gone() const
{
    return {false, BusTexts::tr("The service %1 cannot be reached. Try again when it runs.").arg(m_serviceName)};
}

/// A slot that heard of what was done may have deleted the client.
bool BusClient::remember(const QPointer<BusClient>& client, const Outcome& outcome)
{
    if (client) {
        client->m_lastError = outcome.isDone ? QString() : uiutils::translatedServiceText(outcome.text);
        client->m_rejected = outcome.rejected;
        for (QString& reason : client->m_rejected)
            reason = uiutils::translatedServiceText(reason);
    }
    return outcome.isDone;
}

} // namespace kiv::bus
