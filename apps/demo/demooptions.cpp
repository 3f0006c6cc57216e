#include "demooptions.h"

#include "common/locations.h"
#include "loopbackmeasurement.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>

namespace uiutils::demo {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("DemoOptions", text);
}

DemoOptions misused(const QString& message)
{
    return apps::ended<DemoOptions>(apps::misused(message));
}

} // namespace

DemoOptions readOptions(const QStringList& arguments)
{
    const QString ownRoot = apps::defaultRoot(QStringLiteral("uiutils-demo"));
    const QStringList ownServices = apps::defaultServiceFolders();
    QCommandLineParser parser;
    parser.setApplicationDescription(
            tr("Measures TCP over this machine's loopback interface and saves a report of it, the way a test "
               "application of the instrument does.\n"
               "With a display a window opens. Without one, or with --tour, the program runs by itself.\n\n"
               "Exit status: 0 done, 1 failed, 2 wrong command line."));
    const QCommandLineOption root(QStringLiteral("root"),
            tr("Keep everything that is written below <folder> (default: %1).").arg(ownRoot), tr("folder"), ownRoot);
    const QCommandLineOption services(QStringLiteral("services"),
            tr("Publish the services described in <folder>; may be given more than once (default: %1).")
                    .arg(ownServices.join(QLatin1Char(':'))),
            tr("folder"));
    const QCommandLineOption samples(QStringLiteral("samples"),
            tr("Take <number> samples of each quantity, %1 to %2 (default: as the settings say).")
                    .arg(LoopbackMeasurement::fewestSamples)
                    .arg(LoopbackMeasurement::mostSamples),
            tr("number"));
    const QCommandLineOption tour(
            QStringLiteral("tour"), tr("Measure, save a report, take a picture of each page and quit."));
    parser.addOptions({root, services, samples, tour});

    const apps::CommandLine line = apps::parse(parser, arguments);
    if (line.outcome != apps::CommandLine::Run)
        return apps::ended<DemoOptions>(line);
    if (!parser.positionalArguments().isEmpty())
        return misused(tr("Unexpected argument \"%1\".").arg(parser.positionalArguments().constFirst()));
    if (parser.value(root).isEmpty())
        return misused(tr("--root needs the name of a folder."));
    if (parser.values(services).contains(QString()))
        return misused(tr("--services needs the name of a folder."));

    DemoOptions options;
    if (parser.isSet(samples))
        options.samples = parser.value(samples).toInt();
    if (parser.isSet(samples)
            && (options.samples < LoopbackMeasurement::fewestSamples
                    || options.samples > LoopbackMeasurement::mostSamples)) {
        return misused(tr("--samples needs a number from %1 to %2.")
                               .arg(LoopbackMeasurement::fewestSamples)
                               .arg(LoopbackMeasurement::mostSamples));
    }
    options.root = QDir::cleanPath(QDir().absoluteFilePath(parser.value(root)));
    options.serviceFolders = parser.isSet(services) ? parser.values(services) : ownServices;
    options.isTour = parser.isSet(tour);
    return options;
}

} // namespace uiutils::demo
