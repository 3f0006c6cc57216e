#include "core/paths.h"

#include <QtGlobal>

namespace uiutils {

namespace {

bool liesBelow(const QString& path, QLatin1String folder)
{
    return path.startsWith(folder) && (path.size() == folder.size() || path.at(folder.size()) == QLatin1Char('/'));
}

bool belongsToInstrument(const QString& path)
{
    return liesBelow(path, QLatin1String("/cust")) || liesBelow(path, QLatin1String("/mnt/usb"))
            || liesBelow(path, QLatin1String("/base")) || path.startsWith(paths::plotImageStem);
}

} // namespace

QString paths::plotImage(int number)
{
    return plotImageStem + QString::number(number) + QLatin1String(".png");
}

QString onDisk(const QString& path)
{
    const QString root = qEnvironmentVariable("UIUTILS_ROOT");
    return !root.isEmpty() && belongsToInstrument(path) ? root + path : path;
}

} // namespace uiutils
