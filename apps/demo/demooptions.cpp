#include "demooptions.h"

#include "common/serviceoptions.h"
#include "loopbackmeasurement.h"
#include "texts.h"

#include <QCommandLineParser>

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
    const apps::ServiceOptions services(
            QStringLiteral("uiutils-demo"), Texts::tr("Keep everything that is written below <folder> (default: %1)."));
    QCommandLineParser parser;
    parser.setApplicationDescription(description());
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
    const QCommandLineOption screen = apps::screenOption(QStringLiteral("1024x600@170"));
    parser.addOptions(services.all() << samples << screen << tour << follow);

    const apps::CommandLine line = apps::parse(parser, arguments);
    if (line.outcome != apps::CommandLine::Run)
        return apps::ended<DemoOptions>(line);
    if (!parser.positionalArguments().isEmpty())
        return misused(Texts::tr("Unexpected argument \"%1\".").arg(parser.positionalArguments().constFirst()));
    const QString missing = apps::missingName(parser, services.all());
    if (!missing.isEmpty())
        return misused(missing);

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
    if (parser.isSet(screen)) {
        const QString problem = apps::readScreen(parser.value(screen), &options.screen);
        if (!problem.isEmpty())
            return misused(problem);
    }
    options.root = services.root(parser);
    options.serviceFolders = services.folders(parser);
    options.isTour = parser.isSet(tour);
    options.isFollower = parser.isSet(follow);
    return options;
}

} // namespace uiutils::demo
