#include "options.h"

#include "common/serviceoptions.h"
#include "replayoptions.h"
#include "texts.h"

#include <QCommandLineParser>

namespace uiutils::qmltool {

namespace {

Options misused(const QString& message)
{
    return apps::ended<Options>(apps::misused(message));
}

QString description()
{
    return Texts::tr(
            "Shows a QML page with every item of the described services under its name, such as "
            "basemgr_cfg_saveLocation, and the services themselves as members of \"services\", such as "
            "services.basemgr. With KIV_SIMULATION \"off\" nothing in the services moves or happens by itself.\n\n"
            "Exit status: 0 done, 1 failed, 2 wrong command line.");
}

QCommandLineOption languageOption()
{
    return {QStringLiteral("language"),
            Texts::tr("Show the page in the language of that code, such as \"de\"; \"pseudo\" is long English "
                      "(default: the system's)."),
            Texts::tr("code")};
}

Options chosen(const QCommandLineParser& parser, const apps::ServiceOptions& services)
{
    Options options;
    options.page = parser.positionalArguments().value(0);
    options.serviceFolders = services.folders(parser);
    options.importFolders = parser.values(QStringLiteral("import"));
    options.root = services.root(parser);
    options.language = parser.value(QStringLiteral("language"));
    options.picture = parser.value(QStringLiteral("grab"));
    options.isAudit = parser.isSet(QStringLiteral("audit"));
    options.isCheck = parser.isSet(QStringLiteral("check"));
    options.isJson = parser.isSet(QStringLiteral("json"));
    options.isInspected = parser.isSet(QStringLiteral("inspect"));
    return options;
}

} // namespace

Options readOptions(const QStringList& arguments)
{
    const apps::ServiceOptions services(QStringLiteral("uiutils-qml"),
            Texts::tr("Keep everything that is written, also changed settings, below <folder> (default: %1)."));
    QCommandLineParser parser;
    parser.setApplicationDescription(description());
    parser.addPositionalArgument(
            QStringLiteral("page"), Texts::tr("The QML file to show."), QStringLiteral("page.qml"));
    const QCommandLineOption imports({QStringLiteral("I"), QStringLiteral("import")},
            Texts::tr("Look for further QML modules in <folder>; may be given more than once."), Texts::tr("folder"));
    const QCommandLineOption picture(QStringLiteral("grab"),
            Texts::tr("Write a picture of the page to <file> (PNG) and quit. Exit status 1, with the picture, if the "
                      "page reported an error."),
            Texts::tr("file"));
    const QCommandLineOption screen
            = apps::screenOption(Texts::tr("the size of the page, at the density of this screen"));
    const QCommandLineOption audit(QStringLiteral("audit"),
            Texts::tr(
                    "List what a technician could not touch or read on the page, in every theme, and quit: targets "
                    "below 9 mm or too close together, small, cut, overlapping and faint texts. Exit status 1 if there "
                    "is anything."));
    const QCommandLineOption list(QStringLiteral("list"),
            Texts::tr("List the items, one on each line: name in QML, type and value, separated by tabs. Needs no "
                      "page."));
    const QCommandLineOption inspect(QStringLiteral("inspect"),
            Texts::tr("Show the services and their items beside the page: what they are now, what has changed, and "
                      "what can be done to them by hand."));
    const QCommandLineOption check(QStringLiteral("check"),
            Texts::tr("List what is wrong with the page and the files that it uses, and quit: names that no service "
                      "has, entries that do not suit an item, writes without effect, and what the page reports while "
                      "it is shown off screen. Exit status 1 if there is an error."));
    const QCommandLineOption json(QStringLiteral("json"), Texts::tr("With --check: print JSON, for other programs."));
    const QCommandLineOption language = languageOption();
    const ReplayOptions replay;
    parser.addOptions(
            services.all() << imports << language << picture << screen << inspect << audit << check << json << list);
    parser.addOptions(replay.all());

    const apps::CommandLine line = apps::parse(parser, arguments);
    if (line.outcome != apps::CommandLine::Run)
        return apps::ended<Options>(line);
    const QString missing
            = apps::missingName(parser, services.all() + replay.named() << imports << language << picture);
    if (!missing.isEmpty())
        return misused(missing);
    const QStringList pages = parser.positionalArguments();
    if (parser.isSet(list) != pages.isEmpty() || pages.size() > 1 || pages.contains(QString()))
        return misused(parser.isSet(list) ? Texts::tr("--list takes no page.") : Texts::tr("Name one page to show."));

    if (parser.isSet(inspect) && (parser.isSet(audit) || parser.isSet(list)))
        return misused(Texts::tr("--inspect is for a page that is used, not for --audit or --list."));
    if (parser.isSet(check)
            && (parser.isSet(audit) || parser.isSet(list) || parser.isSet(inspect) || parser.isSet(picture)))
        return misused(Texts::tr("--check allows neither --audit, --grab, --inspect nor --list."));
    if (parser.isSet(json) && !parser.isSet(check))
        return misused(Texts::tr("--json needs --check."));

    Options options = chosen(parser, services);
    if (parser.isSet(screen)) {
        const QString problem = apps::readScreen(parser.value(screen), &options.screen);
        if (!problem.isEmpty())
            return misused(problem);
    }
    const QString problem = replay.read(parser, services.areGiven(parser), &options);
    return problem.isEmpty() ? options : misused(problem);
}

} // namespace uiutils::qmltool
