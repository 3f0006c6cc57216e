#include "options.h"

#include "common/locations.h"
#include "texts.h"

#include <QCommandLineParser>
#include <QDir>

namespace uiutils::kivd {

Options readOptions(const QStringList& arguments)
{
    const QString ownRoot = apps::defaultRoot(QStringLiteral("kivd"));
    const QStringList ownServices = apps::defaultServiceFolders();
    QCommandLineParser parser;
    parser.setApplicationDescription(
            Texts::tr("Publishes the services that service files describe on the session bus, or on the system bus if "
                      "KIV_BUS is \"system\", until it is ended. Settings that clients change are stored.\n\n"
                      "Exit status: 0 ended by a signal, 1 failed, 2 wrong command line."));
    const QCommandLineOption services({QStringLiteral("s"), QStringLiteral("services")},
            Texts::tr("Publish the services described in <folder>; may be given more than once (default: %1).")
                    .arg(ownServices.join(QLatin1Char(':'))),
            Texts::tr("folder"));
    const QCommandLineOption without(QStringLiteral("without"),
            Texts::tr("Leave the service <name> to another program; may be given more than once."), Texts::tr("name"));
    const QCommandLineOption root(QStringLiteral("root"),
            Texts::tr("Store changed settings below <folder> (default: %1).").arg(ownRoot), Texts::tr("folder"),
            ownRoot);
    const QCommandLineOption activation(QStringLiteral("activation-files"),
            Texts::tr("Publish nothing. Write a file into <folder> for each service, by which the bus starts this "
                      "program when a client asks for the service."),
            Texts::tr("folder"));
    parser.addOptions({services, without, root, activation});

    const apps::CommandLine line = apps::parse(parser, arguments);
    if (line.outcome != apps::CommandLine::Run)
        return apps::ended<Options>(line);
    for (const QCommandLineOption& option : {services, without, root, activation}) {
        if (parser.values(option).contains(QString()))
            return apps::ended<Options>(apps::misused(Texts::tr("--%1 needs a name.").arg(option.names().constLast())));
    }
    if (!parser.positionalArguments().isEmpty())
        return apps::ended<Options>(apps::misused(Texts::tr("There are only options, and no further arguments.")));

    Options options;
    options.serviceFolders = parser.isSet(services) ? parser.values(services) : ownServices;
    options.without = parser.values(without);
    options.root = QDir::cleanPath(QDir().absoluteFilePath(parser.value(root)));
    options.activationFolder = parser.value(activation);
    return options;
}

} // namespace uiutils::kivd
