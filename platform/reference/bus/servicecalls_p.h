#pragma once

#include "connection_p.h"

#include "embedded/requests_p.h"

#include <QObject>

namespace kiv::bus {

/// The calls to one service on the bus. They wait for the answer, for at most the time that the caller gives. After a
/// timeout nobody waits again until the service shows that it is awake.
class ServiceCalls final : public QObject
{
    Q_OBJECT

public:
    ServiceCalls(const QString& name, const QByteArray& path, Connection* connection);

    /// The process that has the service now; a service of this thread is called directly.
    void setOwner(const QByteArray& owner);
    /// Whether the owner has the method SendBatch.
    void setKnowsBatches(bool knowsBatches) { m_knowsBatches = knowsBatches; }
    /// The owner said something.
    void noteAlive() { m_isStalled = false; }

    embedded::Outcome setItem(const QString& id, const QVariant& value, int timeoutMs);
    embedded::Outcome sendAction(const QString& id, const QString& argument, int timeoutMs);
    /// What a service answers that cannot be reached.
    embedded::Outcome gone() const;

private:
    embedded::Outcome call(const Message& message, int timeoutMs, bool isBatch = false);
    void onTimeout();

    const QString m_name;
    const QByteArray m_path;
    Connection* const m_connection;
    QByteArray m_owner;
    bool m_isStalled = false;
    bool m_knowsBatches = false;
};

} // namespace kiv::bus
