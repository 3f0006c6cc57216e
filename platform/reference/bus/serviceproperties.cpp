#include "serviceproperties_p.h"

#include "fieldcodec_p.h"
#include "protocol_p.h"

#include "embedded/servicedata_p.h"

#include <QFile>

namespace kiv::bus {

using embedded::EmbeddedService;
using embedded::ServiceData;

namespace {

const QLatin1String versionProperty("Version");
const QLatin1String nameProperty("Name");
const QLatin1String mountsProperty("Mounts");

} // namespace

QStringList propertyNames()
{
    return {versionProperty, nameProperty, mountsProperty};
}

void writeProperty(Writer& writer, const EmbeddedService& service, const QString& name)
{
    writer.open('v', name == mountsProperty ? "as" : "s");
    if (name == mountsProperty) {
        writer.open('a', "s");
        for (const QString& path : mountsOf(service))
            writer.text(withoutNul(path));
        writer.close();
    } else {
        writer.text(name == versionProperty ? QString(version) : withoutNul(service.name()));
    }
    writer.close();
}

QStringList mountsOf(const EmbeddedService& service)
{
    const QSet<QString>& mounted = ServiceData::of(service).mounted;
    QStringList paths(mounted.cbegin(), mounted.cend());
    paths.sort();
    return paths;
}

QString interfaceText()
{
    QFile file(QStringLiteral(":/kiv/bus/org.uiutils.kiv.Service.xml"));
    file.open(QIODevice::ReadOnly);
    return QString::fromUtf8(file.readAll());
}

} // namespace kiv::bus
