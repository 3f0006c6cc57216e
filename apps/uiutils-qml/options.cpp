#include "options.h"

#include "common/locations.h"
#include "texts.h"

#include <QCommandLineParser>
#include <QDir>

namespace uiutils::qmltool {

namespace {

Options misused(const QString& message)
{
    return apps::ended<Options>(apps::misused(message));
}

QString description()
{
    return Texts::tr("Shows a QML page with every item of the described services under its name, such as "
                     "basemgr_cfg_saveLocation, and the services themselves as members of \"services\", such as "
                     "services.basemgr.\n\n"
                     "Exit status: 0 done, 1 failed, 2 wrong command line.");
}

} // namespace

Options readOptions(const QStringList& arguments)
{
    const QString ownRoot = apps::defaultRoot(QStringLiteral("uiutils-qml"));
    const QStringList ownServices = apps::defaultServiceFolders();
    QCommandLineParser parser;
    parser.setApplicationDescription(description());
    parser.addPositionalArgument(
            QStringLiteral("page"), Texts::tr("The QML file to show."), QStringLiteral("page.qml"));
    const QCommandLineOption services({QStringLiteral("s"), QStringLiteral("services")},
            Texts::tr("Publish the services described in <folder>; may be given more than once (default: %1).")
                    .arg(ownServices.join(QLatin1Char(':'))),
            Texts::tr("folder"));
    const QCommandLineOption imports({QStringLiteral("I"), QStringLiteral("import")},
            Texts::tr("Look for further QML modules in <folder>; may be given more than once."), Texts::tr("folder"));
    const QCommandLineOption root(QStringLiteral("root"),
            Texts::tr("Keep everything that is written, also changed settings, below <folder> (default: %1).")
                    .arg(ownRoot),
            Texts::tr("folder"), ownRoot);
    const QCommandLineOption picture(QStringLiteral("grab"),
            Texts::tr("Write a picture of the page to <file> (PNG) and quit."), Texts::tr("file"));
    const QCommandLineOption list(QStringLiteral("list"),
            Texts::tr("List the items, one on each line: name in QML, type and value, separated by tabs. Needs no "
                      "page."));
    parser.addOptions({services, imports, root, picture, list});

    const apps::CommandLine line = apps::parse(parser, arguments);
    if (line.outcome != apps::CommandLine::Run)
        return apps::ended<Options>(line);
    for (const QCommandLineOption& option : {services, imports, root, picture}) {
        if (parser.values(option).contains(QString()))
            return misused(Texts::tr("--%1 needs a name.").arg(option.names().constLast()));
    }
    const QStringList pages = parser.positionalArguments();
    if (parser.isSet(list) != pages.isEmpty() || pages.size() > 1 || pages.contains(QString()))
        return misused(parser.isSet(list) ? Texts::tr("--list takes no page.") : Texts::tr("Name one page to show."));

    Options options;
    options.page = pages.value(0);
    options.serviceFolders = parser.isSet(services) ? parser.values(services) : ownServices;
    options.importFolders = parser.values(imports);
    options.root = QDir::cleanPath(QDir().absoluteFilePath(parser.value(root)));
    options.picture = parser.value(picture);
    return options;
}

} // namespace uiutils::qmltool
