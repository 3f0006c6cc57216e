#include <kiv/kivbackend.h>
#include <kiv/kivclientinterface.h>

KIVClientInterface::KIVClientInterface(QObject* parent)
    : QObject(parent)
{
}

KIVClientInterface::~KIVClientInterface() = default;

KIVClientInterface* KIVClientInterface::getBaseMgrClient()
{
    KIVBackend* backend = KIVBackend::current();
    return backend ? backend->baseManagerClient() : nullptr;
}

KIVClientInterface* KIVClientInterface::getSessionBusClient(const QString& service, QObject* parent)
{
    KIVBackend* backend = KIVBackend::current();
    return backend ? backend->serviceClient(service, parent) : nullptr;
}

bool KIVClientInterface::getItemList(const QString& service, QStringList* ids) const
{
    const bool isOwn = service == getServiceName();
    *ids = isOwn ? getItemIds() : QStringList();
    return isOwn;
}
