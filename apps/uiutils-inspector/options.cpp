#include "options.h"

#include "common/serviceoptions.h"
#include "texts.h"

#include <QCommandLineParser>

namespace uiutils::inspectortool {

namespace {

QString description()
{
    return Texts::tr("Shows services and their items as they change, and what has changed; settings can be edited. "
                     "Without --services, the services are those of other processes, on the bus that KIV_BUS names. "
                     "With --services, or where KIV_PLATFORM is \"embedded\", they live in this process: what they "
                     "report can be set by hand, and they can be slow, reject every change or be away.\n\n"
                     "Exit status: 0 done, 1 failed, 2 wrong command line.");
}

const QStringList& themes()
{
    static const QStringList names {QStringLiteral("light"), QStringLiteral("dark"), QStringLiteral("sunlight")};
    return names;
}

Options misused(const QString& message)
{
    return apps::ended<Options>(apps::misused(message));
}

} // namespace

Options readOptions(const QStringList& arguments)
{
    const apps::ServiceOptions services(QStringLiteral("uiutils-inspector"),
            Texts::tr("Keep everything that is written, also changed settings, below <folder> (default: %1)."));
    QCommandLineParser parser;
    parser.setApplicationDescription(description());
    const QCommandLineOption language(QStringLiteral("language"),
            Texts::tr("Speak the language of that code, such as \"de\" (default: the system's)."), Texts::tr("code"));
    const QCommandLineOption screen = apps::screenOption(Texts::tr("a window at the density of this screen"));
    const QCommandLineOption theme(QStringLiteral("theme"),
            Texts::tr("Use the colours of \"light\", \"dark\" or \"sunlight\" (default: light)."), Texts::tr("theme"),
            themes().constFirst());
    parser.addOptions(services.all() << language << screen << theme);
    const apps::CommandLine line = apps::parse(parser, arguments);
    if (line.outcome != apps::CommandLine::Run)
        return apps::ended<Options>(line);
    const QString missing = apps::missingName(parser, services.all() << language);
    if (!missing.isEmpty())
        return misused(missing);
    if (!parser.positionalArguments().isEmpty())
        return misused(Texts::tr("There is nothing to name but options; uiutils-qml shows pages."));
    if (!themes().contains(parser.value(theme)))
        return misused(Texts::tr("--theme needs \"light\", \"dark\" or \"sunlight\"."));

    Options options;
    options.serviceFolders = services.folders(parser);
    options.isEmbedded = parser.isSet(QStringLiteral("services"));
    options.root = services.root(parser);
    options.language = parser.value(language);
    options.theme = parser.value(theme);
    const QString problem = parser.isSet(screen) ? apps::readScreen(parser.value(screen), &options.screen) : QString();
    return problem.isEmpty() ? options : misused(problem);
}

} // namespace uiutils::inspectortool
