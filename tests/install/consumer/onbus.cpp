#include <bus/busbackend.h>
#include <bus/busnames.h>
#include <embedded/embeddedbackend.h>
#include <kiv/kivclientinterface.h>

#include <QCoreApplication>
#include <QTextStream>

namespace {

/// The bus names of the services in a folder.
int printNames(const QString& folder)
{
    kiv::embedded::EmbeddedBackend backend;
    const QStringList problems = backend.loadFolders({folder});
    for (const QString& service : backend.serviceNames())
        QTextStream(stdout) << kiv::bus::serviceBusName(service) << '\n';
    return problems.isEmpty() ? 0 : 1;
}

/// Whether an item can be read; sends it a value and an action that nobody takes.
int use(const QString& item)
{
    kiv::bus::BusBackend backend;
    if (!backend.waitForServices(60000))
        return 2;
    KIVClientInterface* client = backend.serviceClient(item.section(QLatin1Char(':'), 2, 2), nullptr);
    const bool isTaken = client->setItem(item + QLatin1String("none:"), 1) || client->invokeAction(item);
    QTextStream(stdout) << (client->getItem(item) ? "read" : "absent") << (isTaken ? ", taken" : ", rejected") << '\n';
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication app(argc, argv);
    const QString argument = app.arguments().value(1);
    return argument.startsWith(QLatin1Char(':')) ? use(argument) : printNames(argument);
}
