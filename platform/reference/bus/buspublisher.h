#pragma once

#include <bus/bus_export.h>

#include <QObject>
#include <QString>

#include <memory>

namespace kiv::embedded {
class EmbeddedService;
}

namespace kiv::bus {

/// Publishes services of this process on the bus that KIV_BUS names, "session" (the default) or "system", where clients
/// in other processes find them.
///
/// It works on the event loop of its thread, which has to be that of the services, and never waits. When the bus is
/// lost it connects again, with growing pauses, and publishes the services once more.
class KIVBUS_EXPORT BusPublisher : public QObject
{
    Q_OBJECT

public:
    explicit BusPublisher(QObject* parent = nullptr);
    /// Withdraws all services; they stay with their owner.
    ~BusPublisher() override;

    /// Publishes `service`, which the caller keeps, until it is withdrawn or deleted. It is on the bus when published()
    /// is emitted. While it cannot be reached, see EmbeddedService::setReachable(), its name is given back. Where
    /// another process has the name, the service waits until that gives it back. Returns false, with the reason in
    /// `problem`, when the name does not fit on a bus or a service of that name is published already.
    [[nodiscard]] bool publish(embedded::EmbeddedService* service, QString* problem = nullptr);

    /// Ends what publish() began; nothing for a service that is not published.
    void withdraw(const embedded::EmbeddedService* service);

    /// Whether the service of that name is on the bus now.
    bool isPublished(const QString& service) const;

Q_SIGNALS:
    /// The service can be reached by other processes from now on.
    void published(const QString& service);
    /// Another process has the service's name, and this one waits for it.
    void nameTaken(const QString& service);
    /// The bus cannot be reached, in words; it is tried again.
    void connectionFailed(const QString& reason);

private:
    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace kiv::bus
