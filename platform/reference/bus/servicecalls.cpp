#include "servicecalls_p.h"

#include "bustexts_p.h"
#include "fieldcodec_p.h"
#include "localservices_p.h"
#include "protocol_p.h"
#include "valuecodec_p.h"

#include <algorithm>

namespace kiv::bus {

namespace {

/// Whether the words of an error are the service's, for the user; those of a bus or a library are not.
bool isOwn(const Message& error)
{
    const QString name = error.errorName();
    return name == QLatin1String(errorRejected) || name == QLatin1String(errorLimits)
            || name == QLatin1String(errorInvalidArguments);
}

/// The end of the id of the action that sets a batch of settings.
const QLatin1String batchEnd(":applyconfig:");

/// The answer to SendBatch.
embedded::Outcome readOutcome(const Message& reply, const QString& service)
{
    if (reply.signature() != "bsa{ss}")
        return {false, BusTexts::tr("The service %1 answered something that the interface does not know.").arg(service)};
    Reader reader(reply);
    embedded::Outcome outcome;
    outcome.isDone = reader.boolean();
    outcome.text = reader.text();
    outcome.rejected = readTexts(reader);
    return outcome;
}

} // namespace

using embedded::Outcome;
using embedded::ServiceData;

ServiceCalls::ServiceCalls(const QString& name, const QByteArray& path, Connection* connection)
    : m_name(name)
    , m_path(path)
    , m_connection(connection)
{
}

void ServiceCalls::setOwner(const QByteArray& owner)
{
    m_owner = owner;
    m_isStalled = false;
    m_knowsBatches = false;
}

Outcome ServiceCalls::setItem(const QString& id, const QVariant& value, int timeoutMs)
{
    if (embedded::EmbeddedService* own = localService(m_owner, m_path)) {
        return callInProcess(
                own, 0, timeoutMs, [id, value](ServiceData& service) { return setSetting(service, id, value); });
    }
    if (!canTravel(value))
        return {false, BusTexts::tr("%1 cannot be set: the value is too large, or a text of it holds a NUL.").arg(id)};
    const Message message = m_connection->newCall(m_owner, m_path, serviceInterface, "SetItem");
    Writer writer(message);
    writer.text(id);
    if (value.isValid())
        writeValue(writer, value);
    else
        writeNoValue(writer);
    return writer.isGood() ? call(message, timeoutMs) : gone();
}

Outcome ServiceCalls::sendAction(const QString& id, const QString& argument, int timeoutMs)
{
    if (embedded::EmbeddedService* own = localService(m_owner, m_path)) {
        return callInProcess(own, actionDelay(ServiceData::of(*own), id), timeoutMs,
                [id, argument](ServiceData& service) { return carryOut(service, id, argument); });
    }
    if (!canTravel(argument))
        return {false, BusTexts::tr("%1 was not sent: its argument is too large, or holds a NUL.").arg(id)};
    const bool isBatch = m_knowsBatches && id.endsWith(batchEnd);
    const Message message
            = m_connection->newCall(m_owner, m_path, serviceInterface, isBatch ? "SendBatch" : "SendAction");
    Writer writer(message);
    writer.text(id);
    writer.text(argument);
    return writer.isGood() ? call(message, timeoutMs, isBatch) : gone();
}

Outcome ServiceCalls::call(const Message& message, int timeoutMs, bool isBatch)
{
    if (m_isStalled)
        return {false,
                BusTexts::tr("The service %1 has not answered an earlier request yet. Try again when it does.")
                        .arg(m_name)};
    const Message reply = m_connection->callBlocking(message, timeoutMs);
    if (!reply.isError())
        return isBatch ? readOutcome(reply, m_name)
                       : Outcome {true, reply.signature() == "s" ? Reader(reply).text() : QString()};
    if (Connection::isLoss(reply))
        return {false, BusTexts::tr("The service %1 ended before it answered. Try again when it runs.").arg(m_name)};
    if (!Connection::isTimeout(reply))
        return isOwn(reply) ? Outcome {false, reply.errorText()} : gone();
    onTimeout();
    return {false,
            BusTexts::tr("The service %1 did not answer within %2 ms. It may still carry out the request.")
                    .arg(m_name, QString::number(std::max(timeoutMs, 0)))};
}

Outcome ServiceCalls::gone() const
{
    return {false, BusTexts::tr("The service %1 cannot be reached. Try again when it runs.").arg(m_name)};
}

/// Until the service shows that it is awake nobody waits for it again.
void ServiceCalls::onTimeout()
{
    m_isStalled = true;
    // Whatever it answers is an answer.
    m_connection->call(m_connection->newCall(m_owner, m_path, "org.freedesktop.DBus.Peer", "Ping"), patienceMs, this,
            [this, owner = m_owner](const Message& reply) {
                if (owner != m_owner)
                    return;
                if (m_isStalled && Connection::isTimeout(reply))
                    onTimeout();
                else
                    m_isStalled = false;
            });
}

} // namespace kiv::bus
