#include "inspector.h"

#include "base/paths_p.h"
#include "changefollower.h"
#include "itemglance.h"
#include "service/kivdata.h"
#include "service/manifest.h"
#include "ui_host/host.h"

#include <QtQml>

#include <algorithm>

namespace uiutils::inspector {

Inspector::Inspector(Host* host, const QString& favouritesFile, QObject* parent)
    : QObject(parent)
    , m_host(host)
    , m_favourites(favouritesFile)
    , m_items(&m_favourites)
    , m_recording(host, recordingsFolder())
{
    QQmlEngine::setObjectOwnership(this, QQmlEngine::CppOwnership);
    const QStringList names = host->serviceNames();
    for (const QString& name : names)
        add(name);
    connect(host, &Host::serviceAdded, this, [this](const QString& name) {
        add(name);
        Q_EMIT servicesChanged();
    });
}

Inspector::~Inspector()
{
    // What was done to them ends before what shows it.
    qDeleteAll(m_services);
}

void Inspector::add(const QString& name)
{
    Manifest* const manifest = m_host->manifest(name);
    if (!manifest)
        return;
    m_services += new InspectedService(manifest, [host = m_host, name] { return host->ownService(name); });
    QQmlEngine::setObjectOwnership(m_services.constLast(), QQmlEngine::CppOwnership);
    m_items.add(manifest);
    if (manifest->client())
        m_followers += new ChangeFollower(manifest->client(), &m_log, m_services.constLast());
}

bool Inspector::isListening() const
{
    return std::all_of(m_followers.begin(), m_followers.end(),
            [](const ChangeFollower* follower) { return follower->isComplete(); });
}

QVariantList Inspector::services() const
{
    QVariantList list;
    for (InspectedService* const service : m_services)
        list += QVariant::fromValue<QObject*>(service);
    return list;
}

InspectedService* Inspector::service(const QString& name) const
{
    for (InspectedService* const service : m_services) {
        if (service->name() == name)
            return service;
    }
    return nullptr;
}

InspectedService* Inspector::serviceOf(QObject* item) const
{
    const auto* const manifest = item ? qobject_cast<Manifest*>(item->parent()) : nullptr;
    return manifest ? service(manifest->getServiceName()) : nullptr;
}

QObject* Inspector::item(const QString& id) const
{
    return Manifest::getKivData(id);
}

QString favouritesFile()
{
    return onDisk(QStringLiteral("/cust/private/inspector/favourites"));
}

void registerTypes()
{
    const char* const uri = "UiUtils.Inspector";
    const QString reason = QStringLiteral("The inspector has it");
    qmlRegisterType<ItemGlance>(uri, 1, 0, "ItemGlance");
    qmlRegisterUncreatableType<Inspector>(uri, 1, 0, "Inspector", reason);
    qmlRegisterUncreatableType<InspectedService>(uri, 1, 0, "InspectedService", reason);
    qmlRegisterAnonymousType<ItemRows>(uri, 1);
    qmlRegisterAnonymousType<ChangeLog>(uri, 1);
    qmlRegisterAnonymousType<ServiceRecording>(uri, 1);
}

} // namespace uiutils::inspector
