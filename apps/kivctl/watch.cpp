#include "watch.h"

#include "common/complaint.h"
#include "output.h"
#include "services.h"
#include "values.h"

#include <bus/busbackend.h>
#include <kiv/kivclientinterface.h>
#include <kiv/kivclientitem.h>

#include <QCoreApplication>
#include <QSet>
#include <QSocketNotifier>

#include <csignal>
#include <unistd.h>

namespace uiutils::kivctl {

using kiv::bus::BusBackend;

namespace {

/// There is nothing to store, and a reader that stands still must not keep the program.
void endBySignal(int)
{
    ::_exit(apps::exitDone);
}

void takeSignals()
{
    for (const int signal : {SIGINT, SIGTERM}) {
        if (std::signal(signal, endBySignal) == SIG_IGN)
            std::signal(signal, SIG_IGN);
    }
}

} // namespace

Watch::Watch(const QString& prefix, bool isJson)
    : m_prefix(prefix)
    , m_isJson(isJson)
{
}

void Watch::follow(const QString& service)
{
    KIVClientInterface* const client = KIVClientInterface::getSessionBusClient(service);
    connect(client, &KIVClientInterface::itemsChanged, this, [this, client] { look(client); });
    connect(client, &KIVClientInterface::SigError, this,
            [service](const QString& error) { complain(service + QLatin1String(": ") + error, apps::exitFailed); });
    look(client);
}

void Watch::look(KIVClientInterface* client)
{
    const QString service = client->getServiceName();
    const QStringList ids = client->getItemIds(m_prefix);
    const QStringList before = m_watched.value(service).keys();
    const QSet<QString> now(ids.cbegin(), ids.cend());
    for (const QString& id : before) {
        if (!now.contains(id))
            show(service, id, nullptr);
    }
    for (const QString& id : ids) {
        KIVClientItem* const item = client->getItem(id);
        if (m_watched[service][id].item != item)
            watchItem(service, item);
        show(service, id, item);
    }
}

void Watch::watchItem(const QString& service, KIVClientItem* item)
{
    m_watched[service][item->getId()].item = item;
    const auto showIt = [this, service, item] { show(service, item->getId(), item); };
    connect(item, &KIVClientItem::valueChanged, this, showIt);
    connect(item, &KIVClientItem::unitsChanged, this, showIt);
    connect(item, &KIVClientItem::isReadyChanged, this, showIt);
    connect(item, &KIVClientItem::qualityChanged, this, showIt);
}

void Watch::show(const QString& service, const QString& id, const KIVClientItem* item)
{
    const QByteArray line = lineOf(service, id, item);
    QByteArray& last = m_watched[service][id].line;
    if (line == last)
        return;
    last = line;
    if (print(line) != apps::exitDone)
        QCoreApplication::exit(apps::exitFailed);
}

QByteArray Watch::lineOf(const QString& service, const QString& id, const KIVClientItem* item) const
{
    if (!m_isJson)
        return item ? tableLine({id, valueText(item->getValue()), item->getUnitString(), stateText(*item)})
                    : tableLine({id, QString(), QString(), QStringLiteral("gone")});
    const QJsonObject object = item ? itemJson(service, *item)
                                    : QJsonObject {{QStringLiteral("service"), service}, {QStringLiteral("id"), id},
                                            {QStringLiteral("gone"), true}};
    return jsonText(QJsonDocument(object), QJsonDocument::Compact) + '\n';
}

int watch(Services& services, const Options& options)
{
    int exitStatus = apps::exitDone;
    // What comes later is shown when it comes.
    if (!services.open([&services] { return !services.names().isEmpty(); }, &exitStatus))
        return exitStatus;
    takeSignals();
    Watch watch(options.operands.value(0), options.isJson);
    if (const BusBackend* bus = services.bus()) {
        QObject::connect(bus, &BusBackend::serviceAppeared, &watch, &Watch::follow);
        QObject::connect(bus, &BusBackend::connectionFailed, &watch,
                [](const QString& reason) { complain(reason, exitUnreachable); });
    }
    // An error of the pipe is its reader's end, of which nobody would hear before the next change.
    QSocketNotifier reader(STDOUT_FILENO, QSocketNotifier::Exception);
    QObject::connect(&reader, &QSocketNotifier::activated, &watch, [] { QCoreApplication::exit(apps::exitDone); });
    const QStringList names = services.names();
    for (const QString& name : names)
        watch.follow(name);
    return QCoreApplication::exec();
}

} // namespace uiutils::kivctl
