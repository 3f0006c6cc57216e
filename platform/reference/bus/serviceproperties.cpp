#include "serviceproperties_p.h"

#include "bustexts_p.h"
#include "fieldcodec_p.h"
#include "protocol_p.h"
#include "valuecodec_p.h"

#include "embedded/servicedata_p.h"

#include <QDir>
#include <QFile>

namespace kiv::bus {

using embedded::EmbeddedService;
using embedded::ServiceData;

namespace {

const QLatin1String versionProperty("Version");
const QLatin1String nameProperty("Name");
const QLatin1String mountsProperty("Mounts");

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

QString interfaceText()
{
    QFile file(QStringLiteral(":/kiv/bus/org.uiutils.kiv.Service.xml"));
    file.open(QIODevice::ReadOnly);
    return QString::fromUtf8(file.readAll());
}

} // namespace

QStringList mountsOf(const EmbeddedService& service)
{
    const QSet<QString>& mounted = ServiceData::of(service).mounted;
    QStringList paths(mounted.cbegin(), mounted.cend());
    paths.sort();
    return paths;
}

QSet<QString> cleanPaths(const QVariant& paths)
{
    QSet<QString> clean;
    for (const QString& path : paths.toStringList())
        clean += QDir::cleanPath(path);
    return clean;
}

QVariantMap readProperties(const Message& reply)
{
    Reader reader(reply);
    QVariantMap properties;
    if (reply.isError() || !reader.enter('a', "{sv}"))
        return properties;
    while (!reader.atEnd() && reader.enter('e', "sv")) {
        const QString name = reader.text();
        properties.insert(name, readValue(reader));
        reader.leave();
    }
    return properties;
}

void answerGet(Connection& connection, const EmbeddedService& service, const Message& call)
{
    Reader arguments(call);
    const QString interface = arguments.text();
    const QString name = arguments.text();
    if (!interface.isEmpty() && interface != QLatin1String(serviceInterface)) {
        connection.reject(call, errorUnknownInterface, BusTexts::tr("There are no properties of %1.").arg(interface));
        return;
    }
    if (!propertyNames().contains(name)) {
        connection.reject(call, errorUnknownProperty, BusTexts::tr("There is no property %1.").arg(name));
        return;
    }
    const Message reply = Connection::newReply(call);
    Writer writer(reply);
    writeProperty(writer, service, name);
    connection.send(reply);
}

void answerGetAll(Connection& connection, const EmbeddedService& service, const Message& call)
{
    const QString interface = Reader(call).text();
    const Message reply = Connection::newReply(call);
    Writer writer(reply);
    writer.open('a', "{sv}");
    if (interface.isEmpty() || interface == QLatin1String(serviceInterface)) {
        for (const QString& name : propertyNames()) {
            writer.open('e', "sv");
            writer.text(name);
            writeProperty(writer, service, name);
            writer.close();
        }
    }
    writer.close();
    connection.send(reply);
}

void answerSet(Connection& connection, const Message& call)
{
    connection.reject(call, errorReadOnly, BusTexts::tr("The properties of a service are read-only."));
}

void answerIntrospect(Connection& connection, const Message& call)
{
    const Message reply = Connection::newReply(call);
    Writer(reply).text(interfaceText());
    connection.send(reply);
}

} // namespace kiv::bus
