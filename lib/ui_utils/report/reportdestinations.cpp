#include "report/reportdestinations_p.h"

#include "base/paths_p.h"
#include "core/itemids_p.h"
#include "instrument/basemanager_p.h"
#include "instrument/drives_p.h"

namespace uiutils {

ReportDestinations ReportDestinations::current()
{
    ReportDestinations destinations;
    destinations.location = instrument::baseManagerValue(itemids::saveLocation).toInt();
    destinations.isUsbAnnounced = instrument::baseManagerValue(itemids::usbAttached).toBool();
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
    if (!instrument::isDriveThere(paths::usb))
        folders.removeAll(paths::usb);
    return folders;
}

} // namespace uiutils
