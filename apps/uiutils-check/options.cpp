#include "options.h"

#include <QCommandLineParser>
#include <QFileInfo>

namespace uiutils::checker {

namespace {

QString text(const char* words)
{
    return QString::fromUtf8(words);
}

/// A path that does not exist is a slip on the command line, and no finding in a file.
QString missingOf(const QStringList& paths)
{
    for (const QString& path : paths) {
        if (!QFileInfo::exists(path))
            return QStringLiteral("There is no file or folder %1.").arg(path);
    }
    return QString();
}

} // namespace

Options readOptions(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(text(
            "Finds mistakes in service files, and in QML pages that use their items, before a page runs. Each is told in one line: "
            "file, line, column, what is wrong, and the id of the item.\n\n"
            "Exit status: 0 nothing is wrong, 1 something is, 2 wrong command line."));
    parser.addPositionalArgument(QStringLiteral("services"), text("Folders of service files, or single service files."),
            QStringLiteral("services..."));
    parser.addPositionalArgument(QStringLiteral("pages"), text("QML files whose items are looked up in the services."),
            QStringLiteral("[page.qml...]"));
    const QCommandLineOption json(
            QStringLiteral("json"), text("Print one JSON object with all findings, for editors."));
    const QCommandLineOption import({QStringLiteral("I"), QStringLiteral("import")},
            text("Find the modules that pages import also in <folder>; may be given more than once."), text("folder"));
    const QCommandLineOption quiet(
            {QStringLiteral("q"), QStringLiteral("quiet")}, text("Print errors only, no warnings."));
    const QCommandLineOption strict(QStringLiteral("strict"), text("Exit with status 1 when there are warnings, too."));
    parser.addOptions({json, import, quiet, strict});

    const apps::CommandLine line = apps::parse(parser, arguments);
    if (line.outcome != apps::CommandLine::Run)
        return apps::ended<Options>(line);
    Options options;
    const QStringList paths = parser.positionalArguments();
    for (const QString& path : paths)
        (path.endsWith(QLatin1String(".qml")) ? options.pages : options.services) += path;
    if (options.services.isEmpty())
        return apps::ended<Options>(apps::misused(text("Name a folder of service files, or a service file.")));
    options.importFolders = parser.values(import);
    const QString missing = missingOf(paths + options.importFolders);
    if (!missing.isEmpty())
        return apps::ended<Options>(apps::misused(missing));
    options.asJson = parser.isSet(json);
    options.isQuiet = parser.isSet(quiet);
    options.isStrict = parser.isSet(strict);
    return options;
}

} // namespace uiutils::checker
