#include "busbackend.h"

#include "busclient_p.h"
#include "bustexts_p.h"
#include "protocol_p.h"
#include "reconnecting_p.h"
#include "remoteservice_p.h"

#include "formatters/formatters_p.h"

#include <QAbstractEventDispatcher>
#include <QDir>
#include <QEventLoop>
#include <QMap>
#include <QSet>

#include <algorithm>

namespace kiv::bus {

namespace {

constexpr QLatin1String baseManagerName("basemgr");
/// How long the start of a service holds up the others.
constexpr int startPatienceMs = 500;

} // namespace

struct BusBackend::Private
{
    explicit Private(BusBackend* backend)
        : q(backend)
    {
    }

    Connection* connection() { return bus.connection(); }
    Message daemonCall(const char* member);
    void askDaemon(const Message& call, const Connection::Answer& answer);
    void onReady();
    void onLost();
    void onNames(const Message& reply);
    void onSignal(const Message& signal);
    void onOwner(const QByteArray& busName, const QByteArray& owner);
    void askForOwner(RemoteService* service);
    void checkOwner(RemoteService* service);
    void onUser(RemoteService* service, const QByteArray& owner, const Message& reply);
    void noteAlive(const QByteArray& owner);
    void startNext();
    RemoteService* makeService(const QString& name);
    void onSettled(RemoteService* service);
    bool isSettled() const;

    BusBackend* const q;
    ReconnectingBus bus;
    QMap<QString, RemoteService*> services;
    /// By the unique name of their owner.
    QMultiHash<QByteArray, RemoteService*> byOwner;
    QSet<QString> seen;
    /// Names that the bus can start.
    QStringList toStart;
    bool isStarting = false;
    bool areNamesKnown = false;
    std::optional<quint32> ownUser;
    QString problem;
};

Message BusBackend::Private::daemonCall(const char* member)
{
    return connection()->newCall(daemonName, daemonPath, daemonName, member);
}

void BusBackend::Private::askDaemon(const Message& call, const Connection::Answer& answer)
{
    connection()->call(call, patienceMs, q, answer);
}

// --- Names and their owners ----------------------------------------------------------------------

void BusBackend::Private::onReady()
{
    problem.clear();
    QByteArray prefix(namePrefix.data(), namePrefix.size() - 1);
    connection()->match(
            "type='signal',sender='org.freedesktop.DBus',member='NameOwnerChanged',arg0namespace='" + prefix + '\'');
    const Message user = daemonCall("GetConnectionUnixUser");
    Writer(user).text(QString::fromLatin1(connection()->uniqueName()));
    askDaemon(user, [this](const Message& reply) { ownUser = Reader(reply).uint32(); });
    for (RemoteService* service : qAsConst(services))
        askForOwner(service);
    askDaemon(daemonCall("ListNames"), [this](const Message& reply) { onNames(reply); });
}

void BusBackend::Private::onLost()
{
    areNamesKnown = false;
    isStarting = false;
    toStart.clear();
    byOwner.clear();
    const QPointer<BusBackend> self(q);
    const QList<RemoteService*> all = services.values();
    for (RemoteService* service : all) {
        service->setOwner(QByteArray());
        if (!self)
            return;
    }
}

void BusBackend::Private::onNames(const Message& reply)
{
    Reader reader(reply);
    if (!reply.isError() && reader.enter('a', "s")) {
        while (!reader.atEnd()) {
            const QString name = serviceOfBusName(reader.text().toUtf8());
            if (!name.isEmpty() && !services.contains(name))
                makeService(name);
        }
    }
    areNamesKnown = true;
}

void BusBackend::Private::onSignal(const Message& signal)
{
    const QByteArray sender = signal.sender();
    if (sender != daemonName) {
        const QPointer<BusBackend> self(q);
        const QList<RemoteService*> owned = byOwner.values(sender);
        for (RemoteService* service : owned) {
            service->noteAlive();
            service->hear(signal);
            if (!self)
                return;
        }
        return;
    }
    if (!signal.isSignal(daemonName, "NameOwnerChanged"))
        return;
    Reader reader(signal);
    const QByteArray name = reader.text().toUtf8();
    reader.text();
    onOwner(name, reader.text().toUtf8());
}

void BusBackend::Private::onOwner(const QByteArray& busName, const QByteArray& owner)
{
    const QString name = serviceOfBusName(busName);
    if (name.isEmpty() || (owner.isEmpty() && !services.contains(name)))
        return;
    RemoteService* service = services.value(name);
    if (!service) {
        // Asks for the owner by itself.
        makeService(name);
        return;
    }
    if (service->owner() == owner) {
        service->setOwner(owner);
        return;
    }
    byOwner.remove(service->owner(), service);
    if (!owner.isEmpty())
        byOwner.insert(owner, service);
    const QPointer<RemoteService> alive(service);
    service->setOwner(owner);
    if (alive && service->owner() == owner && !owner.isEmpty())
        checkOwner(service);
}

void BusBackend::Private::askForOwner(RemoteService* service)
{
    const Message call = daemonCall("GetNameOwner");
    Writer(call).text(QString::fromLatin1(service->busName()));
    askDaemon(call, [this, service](const Message& reply) {
        onOwner(service->busName(), reply.isError() ? QByteArray() : Reader(reply).text().toUtf8());
    });
}

/// Another user's process is not believed. On the system bus the policy says who may own the names.
void BusBackend::Private::checkOwner(RemoteService* service)
{
    if (bus.bus() == Bus::System) {
        service->load();
        return;
    }
    const QByteArray owner = service->owner();
    const Message call = daemonCall("GetConnectionUnixUser");
    Writer(call).text(QString::fromLatin1(owner));
    askDaemon(call, [this, service, owner](const Message& reply) { onUser(service, owner, reply); });
}

void BusBackend::Private::onUser(RemoteService* service, const QByteArray& owner, const Message& reply)
{
    // An owner that has gone meanwhile is somebody's no more.
    if (service->owner() != owner || reply.isError())
        return;
    if (ownUser && Reader(reply).uint32() == *ownUser)
        service->load();
    else
        service->giveUp(BusTexts::tr("The service %1 is run by another user and is not used.").arg(service->name()));
}

void BusBackend::Private::noteAlive(const QByteArray& owner)
{
    const QList<RemoteService*> owned = byOwner.values(owner);
    for (RemoteService* service : owned)
        service->noteAlive();
}

/// One after the other: a program that is started for one name may publish the others as well.
void BusBackend::Private::startNext()
{
    while (!toStart.isEmpty()) {
        const QString name = toStart.takeFirst();
        const QString service = serviceOfBusName(name.toUtf8());
        const RemoteService* known = services.value(service);
        if (service.isEmpty() || (known && !known->owner().isEmpty()))
            continue;
        const Message call = daemonCall("StartServiceByName");
        Writer writer(call);
        writer.text(name);
        writer.uint32(0);
        connection()->call(call, startPatienceMs, q, [this](const Message&) { startNext(); });
        return;
    }
    isStarting = false;
}

// --- Services ------------------------------------------------------------------------------------

RemoteService* BusBackend::Private::makeService(const QString& name)
{
    auto* service = new RemoteService(name, connection(), q);
    services.insert(name, service);
    connect(service, &RemoteService::settled, q, [this, service] { onSettled(service); });
    if (connection()->isReady())
        askForOwner(service);
    return service;
}

void BusBackend::Private::onSettled(RemoteService* service)
{
    if (!service->isReachable() || seen.contains(service->name()))
        return;
    seen += service->name();
    Q_EMIT q->serviceAppeared(service->name());
}

bool BusBackend::Private::isSettled() const
{
    return areNamesKnown && !isStarting
            && std::all_of(services.cbegin(), services.cend(),
                    [](const RemoteService* service) { return service->isSettled(); });
}

BusBackend::BusBackend()
    : d(std::make_unique<Private>(this))
{
    connect(&d->bus, &ReconnectingBus::ready, this, [this] { d->onReady(); });
    connect(&d->bus, &ReconnectingBus::lost, this, [this] { d->onLost(); });
    connect(&d->bus, &ReconnectingBus::failed, this, [this](const QString& reason) {
        d->problem = reason;
        Q_EMIT connectionFailed(reason);
    });
    connect(d->connection(), &Connection::signalReceived, this, [this](const Message& signal) { d->onSignal(signal); });
    connect(d->connection(), &Connection::lateReplyReceived, this,
            [this](const QByteArray& sender) { d->noteAlive(sender); });
    setCurrent(this);
    d->bus.start();
}

BusBackend::~BusBackend()
{
    // Nobody who hears of an item's end may find a service that is on its way out.
    if (current() == this)
        setCurrent(nullptr);
    d->bus.disconnect(this);
    d->connection()->disconnect(this);
    const QList<RemoteService*> all = d->services.values();
    for (RemoteService* service : all) {
        service->disconnect(this);
        service->setOwner(QByteArray());
    }
    qDeleteAll(all);
}

bool BusBackend::waitForServices(int timeoutMs, const std::function<bool()>& isEnough)
{
    const auto isOver = [&] { return d->isSettled() || (isEnough && isEnough()); };
    QEventLoop loop;
    QTimer timeout;
    timeout.setSingleShot(true);
    connect(&timeout, &QTimer::timeout, &loop, &QEventLoop::quit);
    // What has to be waited for comes in messages: a look after all that have come is enough.
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, &loop, [&] {
        if (isOver())
            loop.quit();
    });
    timeout.start(timeoutMs);
    if (!isOver())
        loop.exec();
    return d->isSettled();
}

void BusBackend::startServices()
{
    d->isStarting = true;
    d->askDaemon(d->daemonCall("ListActivatableNames"), [this](const Message& reply) {
        Reader reader(reply);
        if (!reply.isError() && reader.enter('a', "s")) {
            while (!reader.atEnd())
                d->toStart += reader.text();
        }
        d->startNext();
    });
}

QStringList BusBackend::serviceNames() const
{
    QStringList names(d->seen.cbegin(), d->seen.cend());
    names.sort();
    return names;
}

QString BusBackend::problem() const
{
    return d->problem;
}

KIVClientInterface* BusBackend::baseManagerClient()
{
    return serviceClient(baseManagerName, nullptr);
}

KIVClientInterface* BusBackend::serviceClient(const QString& name, QObject* parent)
{
    if (busName(name).isEmpty())
        return nullptr;
    RemoteService* service = d->services.value(name);
    if (!service)
        service = d->makeService(name);
    return parent ? new BusClient(service, parent) : service->sharedClient();
}

BaseFormatter* BusBackend::createFormatter(const QString& name) const
{
    return formatters::create(name);
}

std::optional<bool> BusBackend::isMounted(const QString& path) const
{
    const QString clean = QDir::cleanPath(path);
    return std::any_of(d->services.cbegin(), d->services.cend(),
            [&clean](const RemoteService* service) { return service->isMounted(clean); });
}

} // namespace kiv::bus
