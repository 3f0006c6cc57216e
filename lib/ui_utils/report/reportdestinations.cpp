#include "report/reportdestinations_p.h"

#include "core/itemids.h"
#include "core/paths.h"

#include <kiv/kivclientinterface.h>
#include <kiv/kivclientitem.h>

namespace uiutils {

KIVClientItem* baseManagerItem(const QString& id)
{
    const KIVClientInterface* client = KIVClientInterface::getBaseMgrClient();
    return client ? client->getItem(id) : nullptr;
}

QVariant baseManagerValue(const QString& id)
{
    const KIVClientItem* item = baseManagerItem(id);
    return item ? item->getValue() : QVariant();
}

ReportDestinations ReportDestinations::current()
{
    ReportDestinations destinations;
    destinations.location = baseManagerValue(itemids::saveLocation).toInt();
    destinations.isUsbAttached = baseManagerValue(itemids::usbAttached).toBool();
    return destinations;
}

QString ReportDestinations::folder(const QString& internal) const
{
    return location == SaveOnUsb && isUsbAttached ? QString(paths::usb) : internal;
}

QStringList ReportDestinations::foldersToCheck(const QString& internal) const
{
    const QString first = folder(internal);
    return copiesToUsb() ? QStringList {first, paths::usb} : QStringList {first};
}

} // namespace uiutils
