#pragma once

#include <bus/bus_export.h>
#include <kiv/kivbackend.h>

#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>

namespace kiv::bus {

/// A back end whose services live in other processes, found on the bus that KIV_BUS names: "session" (the default) or
/// "system".
///
/// Constructing it makes it the current back end, and begins to connect; nothing waits for that. Services come, go and
/// return while it lives, and their clients follow. When the bus is lost all services count as gone; it is connected
/// again, with growing pauses. All of it works on the event loop of the thread that makes it.
class KIVBUS_EXPORT BusBackend final : public QObject, public KIVBackend
{
    Q_OBJECT

public:
    BusBackend();
    ~BusBackend() override;

    /// Runs an event loop until the services on the bus are known and read, for at most `timeoutMs` milliseconds, and
    /// no longer than until `isEnough`, if given, answers true. Returns whether they are known and read; if not,
    /// problem() may say why.
    bool waitForServices(int timeoutMs, const std::function<bool()>& isEnough = {});

    /// Asks the bus to start the services that it can start and that are not running, one after the other. This returns
    /// at once; waitForServices() waits for them too.
    void startServices();

    /// The services that have been seen on the bus, in ascending order of their names, also while they are away.
    QStringList serviceNames() const;

    /// Why the bus cannot be reached, in words; empty while it can.
    QString problem() const;

    KIVClientInterface* baseManagerClient() override;
    /// Never null for a name that fits on a bus: the client is not valid until there is such a service.
    KIVClientInterface* serviceClient(const QString& service, QObject* parent) override;
    BaseFormatter* createFormatter(const QString& name) const override;
    /// Nothing is mounted but what a service on the bus says is.
    std::optional<bool> isMounted(const QString& path) const override;

Q_SIGNALS:
    /// A service that had not been seen before is reachable.
    void serviceAppeared(const QString& name);
    /// The bus cannot be reached, in words; it is tried again.
    void connectionFailed(const QString& reason);

private:
    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace kiv::bus
