#include "buspublisher.h"

#include "bustexts_p.h"
#include "localservices_p.h"
#include "protocol_p.h"
#include "reconnecting_p.h"
#include "servicepublication_p.h"

#include <algorithm>
#include <vector>

namespace kiv::bus {

namespace {

// Answers of RequestName.
constexpr quint32 primaryOwner = 1;
constexpr quint32 inQueue = 2;

} // namespace

struct BusPublisher::Private
{
    explicit Private(BusPublisher* publisher)
        : q(publisher)
    {
    }

    Connection* connection() { return bus.connection(); }
    ServicePublication* find(const QByteArray& busName, const QByteArray& path) const;
    Message daemonCall(const char* member);
    void onReady();
    void onLost();
    void onCall(const Message& call);
    void onSignal(const Message& signal);
    void requestName(ServicePublication* publication);
    void releaseName(ServicePublication* publication);
    void onReachable(ServicePublication* publication);
    void setOwner(ServicePublication* publication, bool isOwner);
    void remove(const embedded::EmbeddedService* service);

    BusPublisher* const q;
    ReconnectingBus bus;
    std::vector<std::unique_ptr<ServicePublication>> publications;
};

ServicePublication* BusPublisher::Private::find(const QByteArray& busName, const QByteArray& path) const
{
    const auto it = std::find_if(publications.cbegin(), publications.cend(), [&](const auto& publication) {
        return publication->busName() == busName || publication->objectPath() == path;
    });
    return it == publications.cend() ? nullptr : it->get();
}

Message BusPublisher::Private::daemonCall(const char* member)
{
    return connection()->newCall(daemonName, daemonPath, daemonName, member);
}

void BusPublisher::Private::onReady()
{
    // Departing connections: the third argument, the new owner, is empty.
    connection()->match("type='signal',sender='org.freedesktop.DBus',member='NameOwnerChanged',arg2=''");
    for (const auto& publication : publications)
        requestName(publication.get());
}

void BusPublisher::Private::onLost()
{
    for (const auto& publication : publications) {
        removeLocalService(publication->service());
        publication->forgetAll();
    }
}

void BusPublisher::Private::onCall(const Message& call)
{
    ServicePublication* publication = find(QByteArray(), call.path());
    if (publication && publication->service() && publication->service()->isReachable())
        publication->handle(call);
    else
        connection()->reject(
                call, errorUnknownObject, BusTexts::tr("There is no object %1.").arg(QString::fromUtf8(call.path())));
}

void BusPublisher::Private::onSignal(const Message& signal)
{
    if (signal.sender() != daemonName)
        return;
    const QByteArray name = Reader(signal).text().toUtf8();
    if (signal.isSignal(daemonName, "NameOwnerChanged")) {
        for (const auto& publication : publications)
            publication->forget(name);
        return;
    }
    const bool isAcquired = signal.isSignal(daemonName, "NameAcquired");
    ServicePublication* publication = find(name, QByteArray());
    if (publication && (isAcquired || signal.isSignal(daemonName, "NameLost")))
        setOwner(publication, isAcquired);
}

void BusPublisher::Private::requestName(ServicePublication* publication)
{
    if (!connection()->isReady() || !publication->service() || !publication->service()->isReachable())
        return;
    const Message call = daemonCall("RequestName");
    Writer writer(call);
    writer.text(QString::fromLatin1(publication->busName()));
    writer.uint32(0);
    connection()->call(call, patienceMs, publication, [this, publication](const Message& reply) {
        // Lost meanwhile; the name is requested again when the bus is back.
        if (!connection()->isReady())
            return;
        const quint32 answer = reply.isError() ? 0 : Reader(reply).uint32();
        if (answer == inQueue)
            Q_EMIT q->nameTaken(publication->service() ? publication->service()->name() : QString());
        else if (answer == primaryOwner)
            setOwner(publication, true);
        else if (reply.isError())
            Q_EMIT q->connectionFailed(reply.errorText());
    });
}

void BusPublisher::Private::releaseName(ServicePublication* publication)
{
    removeLocalService(publication->service());
    publication->isOwner = false;
    const Message call = daemonCall("ReleaseName");
    Writer(call).text(QString::fromLatin1(publication->busName()));
    Connection::expectNoReply(call);
    connection()->send(call);
}

void BusPublisher::Private::onReachable(ServicePublication* publication)
{
    if (publication->service()->isReachable())
        requestName(publication);
    else
        releaseName(publication);
}

void BusPublisher::Private::setOwner(ServicePublication* publication, bool isOwner)
{
    if (publication->isOwner == isOwner || !publication->service())
        return;
    publication->isOwner = isOwner;
    if (!isOwner) {
        removeLocalService(publication->service());
        return;
    }
    addLocalService(connection()->uniqueName(), publication->objectPath(), publication->service());
    Q_EMIT q->published(publication->service()->name());
}

/// Without looking at the service, which may be half destroyed.
void BusPublisher::Private::remove(const embedded::EmbeddedService* service)
{
    const auto it = std::find_if(publications.begin(), publications.end(),
            [service](const auto& publication) { return publication->key == service; });
    if (it == publications.end())
        return;
    releaseName(it->get());
    publications.erase(it);
}

BusPublisher::BusPublisher(QObject* parent)
    : QObject(parent)
    , d(std::make_unique<Private>(this))
{
    connect(&d->bus, &ReconnectingBus::ready, this, [this] { d->onReady(); });
    connect(&d->bus, &ReconnectingBus::lost, this, [this] { d->onLost(); });
    connect(&d->bus, &ReconnectingBus::failed, this, &BusPublisher::connectionFailed);
    connect(d->connection(), &Connection::callReceived, this, [this](const Message& call) { d->onCall(call); });
    connect(d->connection(), &Connection::signalReceived, this, [this](const Message& signal) { d->onSignal(signal); });
}

BusPublisher::~BusPublisher()
{
    for (const auto& publication : d->publications)
        removeLocalService(publication->service());
}

bool BusPublisher::publish(embedded::EmbeddedService* service, QString* problem)
{
    const QByteArray name = busName(service->name());
    QString reason;
    if (name.isEmpty())
        reason = BusTexts::tr("The name of the service %1 is too long for a bus.").arg(service->name().left(80));
    else if (d->find(name, QByteArray()))
        reason = BusTexts::tr("A service %1 is published already.").arg(service->name());
    if (problem)
        *problem = reason;
    if (!reason.isEmpty())
        return false;
    d->publications.push_back(std::make_unique<ServicePublication>(service, d->connection(), nullptr));
    ServicePublication* publication = d->publications.back().get();
    connect(publication, &ServicePublication::reachableChanged, this,
            [this, publication] { d->onReachable(publication); });
    connect(service, &QObject::destroyed, this, [this, service] { d->remove(service); });
    d->bus.start();
    d->requestName(publication);
    return true;
}

void BusPublisher::withdraw(const embedded::EmbeddedService* service)
{
    disconnect(service, &QObject::destroyed, this, nullptr);
    d->remove(service);
}

bool BusPublisher::isPublished(const QString& service) const
{
    const ServicePublication* publication = d->find(busName(service), QByteArray());
    return publication && publication->isOwner;
}

} // namespace kiv::bus
