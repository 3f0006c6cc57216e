#include "inputplugins.h"

#include <QFileInfo>

#include <algorithm>

namespace uiutils::viewer {

namespace {

bool isWindowSystem(const QByteArray& platforms)
{
    return platforms.startsWith("xcb") || platforms.startsWith("wayland");
}

bool hasItsDevices(const QString& plugin)
{
    const QStringList settings = plugin.split(QLatin1Char(':')).mid(1);
    return std::all_of(settings.begin(), settings.end(), [](const QString& setting) {
        return !setting.startsWith(QLatin1Char('/')) || QFileInfo(setting).isReadable();
    });
}

} // namespace

QStringList usablePlugins(const QStringList& plugins, const QByteArray& platforms)
{
    QStringList usable;
    if (!isWindowSystem(platforms))
        std::copy_if(plugins.begin(), plugins.end(), std::back_inserter(usable), hasItsDevices);
    return usable;
}

} // namespace uiutils::viewer
