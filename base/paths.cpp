#include "base/paths.h"

#include <QDir>
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

QString paths::plotImage(quint64 number)
{
    return plotImageStem + QString::number(number) + QLatin1String(".png");
}

QString onDisk(const QString& path)
{
    const QString root = qEnvironmentVariable("UIUTILS_ROOT");
    // A relative path is the machine's own, and cleaning one may leave ".." in it.
    if (root.isEmpty() || !path.startsWith(QLatin1Char('/')))
        return path;
    QString clean = QDir::cleanPath(path);
    // There is nothing above the top, and Qt leaves that to the system.
    while (clean.startsWith(QLatin1String("/../")))
        clean.remove(0, 3);
    if (!belongsToInstrument(clean))
        return path;
    // What is written behind a folder's name stays behind it.
    if (path.endsWith(QLatin1Char('/')))
        clean += QLatin1Char('/');
    return root + clean;
}

} // namespace uiutils
