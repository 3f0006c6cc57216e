#include "report/reportdestinations_p.h"

#include "base/paths.h"
#include "core/itemids.h"

#include <kiv/filesystemusage.h>
#include <kiv/kivclientinterface.h>
#include <kiv/kivclientitem.h>

#include <QDir>

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
    destinations.isUsbAnnounced = baseManagerValue(itemids::usbAttached).toBool();
    return destinations;
}

QString ReportDestinations::folder(const QString& internal) const
{
    return location == SaveOnUsb && isUsbAnnounced ? QString(paths::usb) : internal;
}

QStringList ReportDestinations::foldersToCheck(const QString& internal) const
{
    QStringList folders {folder(internal)};
    if (copiesToUsb())
        folders += paths::usb;
    if (!isDriveThere(paths::usb))
        folders.removeAll(paths::usb);
    return folders;
}

bool isOnUsb(const QString& path)
{
    return QDir::cleanPath(path).startsWith(paths::usb) || path == paths::usb;
}

QString usbPath(const QString& path)
{
    return paths::usb + path.mid(path.lastIndexOf(QLatin1Char('/')) + 1);
}

bool isDriveThere(const QString& path)
{
    return !isOnUsb(path) || FileSystemUsage::isMounted(paths::usb);
}

} // namespace uiutils
