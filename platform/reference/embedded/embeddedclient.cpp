#include "embeddedclient_p.h"

#include "serviceregistry_p.h"
#include "texts_p.h"

#include "base/servicetext_p.h"

namespace kiv::embedded {

EmbeddedClient::EmbeddedClient(ServicePlace* place, QObject* parent)
    : KIVClientInterface(parent)
    , m_place(place)
    , m_serviceName(place->name())
{
    connect(place, &ServicePlace::itemsChanged, this, &EmbeddedClient::itemsChanged);
    connect(place, &ServicePlace::errorReported, this,
            [this](const QString& text) { Q_EMIT SigError(uiutils::translatedServiceText(text)); });
}

EmbeddedService* EmbeddedClient::service() const
{
    EmbeddedService* published = m_place ? m_place->service() : nullptr;
    return published && published->isReachable() ? published : nullptr;
}

QStringList EmbeddedClient::getItemIds(const QString& prefix) const
{
    return service() ? service()->itemIds(prefix) : QStringList();
}

bool EmbeddedClient::getItemList(const QString& serviceName, QStringList* ids) const
{
    ids->clear();
    if (serviceName != m_serviceName)
        return false;
    const QVector<ItemStore::StatePtr> states
            = service() ? ServiceData::of(*service()).items.inOrder() : QVector<ItemStore::StatePtr>();
    for (const ItemStore::StatePtr& state : states)
        *ids += state->description.id;
    return true;
}

KIVClientItem* EmbeddedClient::getItem(const QString& id) const
{
    return service() ? service()->item(id) : nullptr;
}

bool EmbeddedClient::setItem(const QString& id, const QVariant& value)
{
    const QPointer<EmbeddedClient> self(this);
    const Outcome outcome
            = call(0, callTimeout, [id, value](ServiceData& service) { return setSetting(service, id, value); });
    return remember(self, outcome);
}

bool EmbeddedClient::sendAction(const QString& id, const QString& argument, QString* reply, int timeoutMs)
{
    const QPointer<EmbeddedClient> self(this);
    const int delay = service() ? actionDelay(ServiceData::of(*service()), id) : 0;
    const Outcome outcome
            = call(delay, timeoutMs, [id, argument](ServiceData& service) { return carryOut(service, id, argument); });
    if (outcome.isDone && reply)
        *reply = outcome.text;
    return remember(self, outcome);
}

bool EmbeddedClient::invokeAction(const QString& id)
{
    return sendAction(id, QString(), nullptr, callTimeout);
}

Outcome EmbeddedClient::call(int delayMs, int timeoutMs, const Request& request) const
{
    EmbeddedService* called = service();
    if (!called)
        return {false,
                RequestTexts::tr("The service %1 cannot be reached. Try again when it runs.").arg(m_serviceName)};
    return callInProcess(called, delayMs, timeoutMs, request);
}

/// A slot that heard of the change may have deleted the client.
bool EmbeddedClient::remember(const QPointer<EmbeddedClient>& client, const Outcome& outcome)
{
    if (client) {
        client->m_lastError = outcome.isDone ? QString() : uiutils::translatedServiceText(outcome.text);
        client->m_rejected = outcome.rejected;
        for (QString& reason : client->m_rejected)
            reason = uiutils::translatedServiceText(reason);
    }
    return outcome.isDone;
}

} // namespace kiv::embedded
