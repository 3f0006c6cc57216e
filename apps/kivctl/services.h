#pragma once

#include "options.h"

#include <QStringList>
#include <QVector>

#include <functional>
#include <memory>

class KIVClientInterface;
class KIVClientItem;

namespace kiv::bus {
class BusBackend;
}
namespace kiv::embedded {
class EmbeddedBackend;
}

namespace uiutils::kivctl {

/// The services of the platform that the command line names.
class Services
{
public:
    explicit Services(const Options& options);
    /// Stores what was set in services of this process.
    ~Services();
    Q_DISABLE_COPY_MOVE(Services)

    using Question = std::function<bool()>;
    /// Brings the services up, and waits until all have been read, or `isEnough` answers true. Returns false, having
    /// complained, when there are none to be had; `exitStatus` then says why.
    bool open(const Question& isEnough, int* exitStatus);

    /// The same for one service alone, and its client; null, having complained, when it is not to be had.
    KIVClientInterface* openFor(const QString& service, int* exitStatus);

    /// Null without a bus.
    kiv::bus::BusBackend* bus() const { return m_bus.get(); }

    /// Whether all services that are there have been read.
    bool isComplete() const { return m_isComplete; }
    QStringList names() const;
    /// Of the services that can be reached, in the order of their names.
    QVector<KIVClientInterface*> clients() const;
    /// Null for a name that no service has.
    KIVClientInterface* client(const QString& service) const;
    /// The client of the service that has the item, or accepts the action although it does not list it. Or null.
    KIVClientInterface* owner(const QString& id) const;
    /// The item of a service that can be reached. Or null.
    KIVClientItem* item(const QString& id) const;

    // Returns the exit status, having complained.
    /// Not every service has answered.
    int incomplete() const;
    /// There is no item of these ids.
    int unknownItems(const QStringList& ids) const;
    int unknownService(const QString& name) const;
    /// A call was not done, for the reason that the client gives.
    int failed(const KIVClientInterface& client) const;

    /// Writes down what was set in services of this process. Returns false, having complained, when that fails.
    bool store();

private:
    bool openBus(const Question& isEnough, int* exitStatus);
    bool openEmbedded(int* exitStatus);
    int unknown(const QString& text, const QStringList& proposals) const;

    const Options m_options;
    bool m_isComplete = false;
    std::unique_ptr<kiv::bus::BusBackend> m_bus;
    std::unique_ptr<kiv::embedded::EmbeddedBackend> m_embedded;
};

/// Where a batch of settings is applied; empty for a service that takes none.
QString batchAction(const KIVClientInterface& client);

} // namespace uiutils::kivctl
