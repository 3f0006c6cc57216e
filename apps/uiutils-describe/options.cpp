#include "options.h"

#include "common/serviceoptions.h"
#include "names/qmlname.h"
#include "ui_host/describedservices_p.h"

#include <QCommandLineParser>
#include <QDir>

#include <algorithm>

namespace uiutils::describe {

namespace {

Options misused(const QString& message)
{
    return apps::ended<Options>(apps::misused(message));
}

/// In the shape that help2man reads.
QString helpText()
{
    return QStringLiteral(R"(Usage: uiutils-describe [OPTION]... --output=FOLDER [SERVICE...]
  or:  uiutils-describe [OPTION]... --ts FILE...
Write a QML module for each service, or for each SERVICE named, with a property
for every item, so that editors and qmllint know the items before a page runs.

A page then imports the module of "optical" and uses its items by their names:

  import Instrument.Optical 1.0
  Text { text: Optical.res_power.valueString }

With --ts, bring catalogues of translators up to what service files say to
people: labels, choices, units and errors.

Options:
  -o, --output=FOLDER    write the modules below FOLDER, an import path; files
                         that are right are left as they are, and a file that
                         this program has not made is never replaced
  -s, --services=PATH    describe the services of the service files in the folder
                         PATH, or of the file PATH; may be given more than once
                         (default: %1)
      --bus              describe the services of other processes, on the bus
                         that KIV_BUS names
      --import-name=NAME
                         begin the names of the modules with NAME (default:
                         Instrument)
      --resource=FILE    write a collection of Qt resources that makes an
                         application bring the modules along
      --ts               FILE is a catalogue, NAME_LANGUAGE.ts; it is made if it
                         does not exist, gets new texts, keeps translations, and
                         marks as vanished what no service file says
  -h, --help             show this help
  -v, --version          show the version

A SERVICE is a name such as "com.example.optical", or its last part.

Exit status:
  0  done
  1  a service could not be described, or a file not be written; the message
     says why. With --ts, a service file that cannot be read changes nothing
  2  the command line is wrong

Environment:
  KIV_PLATFORM  "embedded" (the default), or "bus" in place of --bus
  KIV_BUS       "session" (the default) or "system"
  KIV_SERVICES  folders of service files, separated by colons

Examples:
  uiutils-describe --services services --output imports
  qmllint -U -I imports -I QTFOLDER Page.qml
                    finds names that no item has

  uiutils-describe --services services --ts services/translations/optical_de.ts
                    enters what is new for translators

  uiutils-describe --bus --output imports optical
                    describes one service that runs
)")
            .arg(defaultServiceFolders().join(QLatin1Char(':')));
}

bool isImportName(const QString& name)
{
    const QStringList parts = name.split(QLatin1Char('.'));
    return std::all_of(parts.cbegin(), parts.cend(), names::isQmlName);
}

} // namespace

Options readOptions(const QStringList& arguments)
{
    QCommandLineParser parser;
    const QCommandLineOption output({QStringLiteral("o"), QStringLiteral("output")}, {}, QStringLiteral("FOLDER"));
    const QCommandLineOption services({QStringLiteral("s"), QStringLiteral("services")}, {}, QStringLiteral("PATH"));
    const QCommandLineOption bus(QStringLiteral("bus"));
    const QCommandLineOption importName(
            QStringLiteral("import-name"), {}, QStringLiteral("NAME"), QStringLiteral("Instrument"));
    const QCommandLineOption resources(QStringLiteral("resource"), {}, QStringLiteral("FILE"));
    const QList<QCommandLineOption> named {output, services, importName, resources};
    parser.addOptions(named);
    const QCommandLineOption catalogues(QStringLiteral("ts"));
    parser.addOptions({bus, catalogues});
    const apps::CommandLine line = apps::parse(parser, arguments, {helpText(), QString()});
    if (line.outcome != apps::CommandLine::Run)
        return apps::ended<Options>(line);
    QString problem = apps::missingName(parser, named);
    // What the command line says counts, whatever the environment says.
    const bool isChosen = parser.isSet(bus) || parser.isSet(services);
    const std::optional<PlatformKind> kind
            = isChosen ? PlatformKind::Embedded : chosenPlatform(PlatformKind::Embedded, &problem);
    if (!problem.isEmpty())
        return misused(problem);
    const bool areCatalogues = parser.isSet(catalogues);
    if (areCatalogues && (parser.isSet(output) || parser.isSet(resources) || parser.isSet(bus)))
        return misused(
                QStringLiteral("--ts reads service files and writes no modules: leave out --output, --resource and "
                               "--bus."));
    if (areCatalogues && parser.positionalArguments().isEmpty())
        return misused(QStringLiteral("Name a catalogue after --ts, such as translations/optical_de.ts."));
    if (!areCatalogues && !parser.isSet(output))
        return misused(QStringLiteral("Name a folder for the modules with --output."));
    if (parser.isSet(bus) && parser.isSet(services))
        return misused(QStringLiteral("--bus and --services exclude each other."));

    Options options;
    options.isBus = parser.isSet(bus) || kind == PlatformKind::Bus;
    options.services = parser.isSet(services) ? parser.values(services) : defaultServiceFolders();
    (areCatalogues ? options.catalogues : options.wanted) = parser.positionalArguments();
    options.output = QDir::cleanPath(QDir().absoluteFilePath(parser.value(output)));
    options.importName = parser.value(importName);
    options.resources = parser.value(resources);
    if (!isImportName(options.importName))
        return misused(QStringLiteral("--import-name is \"%1\". QML needs names of letters, digits and \"_\" there, "
                                      "separated by points.")
                               .arg(options.importName));
    return options;
}

} // namespace uiutils::describe
