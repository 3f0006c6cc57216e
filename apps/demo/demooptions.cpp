#include "demooptions.h"

#include "common/locations.h"
#include "loopbackmeasurement.h"
#include "texts.h"

#include <QCommandLineParser>
#include <QDir>

namespace uiutils::demo {

namespace {

DemoOptions misused(const QString& message)
{
    return apps::ended<DemoOptions>(apps::misused(message));
}

QString description()
{
    return Texts::tr("Measures TCP over this machine's loopback interface and saves a report of it, the way a test "
                     "application of the instrument does.\n"
                     "With a display a window opens. Without one, or with --tour, the program runs by itself.\n\n"
                     "Exit status: 0 done, 1 failed, 2 wrong command line.");
}

} // namespace

DemoOptions readOptions(const QStringList& arguments)
{
    const QString ownRoot = apps::defaultRoot(QStringLiteral("uiutils-demo"));
    const QStringList ownServices = apps::defaultServiceFolders();
    QCommandLineParser parser;
    parser.setApplicationDescription(description());
    const QCommandLineOption root(QStringLiteral("root"),
            Texts::tr("Keep everything that is written below <folder> (default: %1).").arg(ownRoot),
            Texts::tr("folder"), ownRoot);
    const QCommandLineOption services(QStringLiteral("services"),
            Texts::tr("Publish the services described in <folder>; may be given more than once (default: %1).")
                    .arg(ownServices.join(QLatin1Char(':'))),
            Texts::tr("folder"));
    const QCommandLineOption samples(QStringLiteral("samples"),
            Texts::tr("Take <number> samples of each quantity, %1 to %2 (default: as the settings say).")
                    .arg(LoopbackMeasurement::fewestSamples)
                    .arg(LoopbackMeasurement::mostSamples),
            Texts::tr("number"));
    const QCommandLineOption tour(
            QStringLiteral("tour"), Texts::tr("Measure, save a report, take a picture of each page and quit."));
    const QCommandLineOption follow(QStringLiteral("follow"),
            Texts::tr("Wait until another application changes the user's name, the services end and return; take a "
                      "picture of each and quit. Needs KIV_PLATFORM=bus."));
    parser.addOptions({root, services, samples, tour, follow});

    const apps::CommandLine line = apps::parse(parser, arguments);
    if (line.outcome != apps::CommandLine::Run)
        return apps::ended<DemoOptions>(line);
    if (!parser.positionalArguments().isEmpty())
        return misused(Texts::tr("Unexpected argument \"%1\".").arg(parser.positionalArguments().constFirst()));
    if (parser.value(root).isEmpty())
        return misused(Texts::tr("--root needs the name of a folder."));
    if (parser.values(services).contains(QString()))
        return misused(Texts::tr("--services needs the name of a folder."));

    DemoOptions options;
    if (parser.isSet(samples))
        options.samples = parser.value(samples).toInt();
    if (parser.isSet(samples)
            && (options.samples < LoopbackMeasurement::fewestSamples
                    || options.samples > LoopbackMeasurement::mostSamples)) {
        return misused(Texts::tr("--samples needs a number from %1 to %2.")
                               .arg(LoopbackMeasurement::fewestSamples)
                               .arg(LoopbackMeasurement::mostSamples));
    }
    options.root = QDir::cleanPath(QDir().absoluteFilePath(parser.value(root)));
    options.serviceFolders = parser.isSet(services) ? parser.values(services) : ownServices;
    options.isTour = parser.isSet(tour);
    options.isFollower = parser.isSet(follow);
    return options;
}

} // namespace uiutils::demo
