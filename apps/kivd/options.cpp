#include "options.h"

#include "common/serviceoptions.h"
#include "texts.h"

#include <QCommandLineParser>

namespace uiutils::kivd {

Options readOptions(const QStringList& arguments)
{
    const apps::ServiceOptions services(
            QStringLiteral("kivd"), Texts::tr("Store changed settings below <folder> (default: %1)."));
    QCommandLineParser parser;
    parser.setApplicationDescription(Texts::tr(
            "Publishes the services that service files describe on the session bus, or on the system bus if "
            "KIV_BUS is \"system\", until it is ended. Settings that clients change are stored. With KIV_SIMULATION "
            "\"off\" nothing moves or happens by itself.\n\n"
            "Exit status: 0 ended by a signal, 1 failed, 2 wrong command line."));
    const QCommandLineOption without(QStringLiteral("without"),
            Texts::tr("Leave the service <name> to another program; may be given more than once."), Texts::tr("name"));
    const QCommandLineOption activation(QStringLiteral("activation-files"),
            Texts::tr("Publish nothing. Write a file into <folder> for each service, by which the bus starts this "
                      "program when a client asks for the service."),
            Texts::tr("folder"));
    const QCommandLineOption follow(QStringLiteral("follow"),
            Texts::tr("Read service files again when they change, and load those that are added. A file that cannot be "
                      "used changes nothing. For whoever writes them: otherwise they are read once, at the start."));
    parser.addOptions(services.all() << without << activation << follow);

    const apps::CommandLine line = apps::parse(parser, arguments);
    if (line.outcome != apps::CommandLine::Run)
        return apps::ended<Options>(line);
    const QString missing = apps::missingName(parser, services.all() << without << activation);
    if (!missing.isEmpty())
        return apps::ended<Options>(apps::misused(missing));
    if (!parser.positionalArguments().isEmpty())
        return apps::ended<Options>(apps::misused(Texts::tr("There are only options, and no further arguments.")));

    Options options;
    options.serviceFolders = services.folders(parser);
    options.without = parser.values(without);
    options.root = services.root(parser);
    options.activationFolder = parser.value(activation);
    options.isFollowing = parser.isSet(follow);
    return options;
}

} // namespace uiutils::kivd
