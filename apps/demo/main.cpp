#include "common/displaysetup.h"
#include "common/instrument.h"
#include "common/locations.h"
#include "common/startup.h"
#include "demooptions.h"
#include "demotypes.h"
#include "instrumentroot.h"
#include "loopbackmeasurement.h"
#include "loopbackreport.h"
#include "measurementsettings.h"
#include "resultpublisher.h"
#include "screencamera.h"
#include "texts.h"
#include "tour.h"

#include <embedded/embeddedbackend.h>
#include <kiv/kivclientinterface.h>

#include <QGuiApplication>
#include <QLoggingCategory>
#include <QQmlApplicationEngine>
#include <QQuickWindow>

#include <cstdio>

using namespace uiutils::demo;
using namespace uiutils::apps;

namespace {

void say(const QString& text)
{
    std::fprintf(stdout, "%s\n", qUtf8Printable(text));
    std::fflush(stdout);
}

void list(const QString& heading, const QStringList& files)
{
    if (files.isEmpty())
        return;
    say(heading);
    for (const QString& file : files)
        say(file);
}

/// The main window, or null when its page cannot be loaded.
QQuickWindow* openWindow(QQmlApplicationEngine& engine, LoopbackMeasurement* measurement)
{
    engine.setInitialProperties({{QStringLiteral("measurement"), QVariant::fromValue(measurement)}});
    engine.load(QUrl(QStringLiteral("qrc:/uiutils/demo/Main.qml")));
    return engine.rootObjects().isEmpty() ? nullptr : qobject_cast<QQuickWindow*>(engine.rootObjects().constFirst());
}

int runTour(Tour& tour)
{
    QObject::connect(
            &tour, &Tour::finished, qApp, [] { QCoreApplication::exit(exitDone); }, Qt::QueuedConnection);
    QObject::connect(
            &tour, &Tour::failed, qApp, [](const QString& text) { QCoreApplication::exit(complain(text)); },
            Qt::QueuedConnection);
    tour.start();
    return QCoreApplication::exec();
}

int runDemo(const DemoOptions& options)
{
    if (!useRoot(options.root))
        return exitFailed;
    kiv::embedded::EmbeddedBackend backend;
    if (!uiutils::apps::loadServices(backend, options.serviceFolders, options.root))
        return exitFailed;
    QString error;
    if (!prepareInstrumentRoot(options.root, pdfViewerProgram(), &error))
        return complain(error);
    say(Texts::tr("Everything is written below %1").arg(options.root));

    registerDemoTypes();
    // The pages draw their own controls over this style; another style would show through.
    qputenv("QT_QUICK_CONTROLS_STYLE", "Default");
    const bool isOffScreen = DisplaySetup::isOffScreen();
    if (isOffScreen)
        QQuickWindow::setSceneGraphBackend(QSGRendererInterface::Software);

    LoopbackMeasurement measurement;
    const MeasurementSettings settings(&measurement,
            KIVClientInterface::getSessionBusClient(QStringLiteral("loopback")),
            options.samples > 0 ? MeasurementSettings::KeepSampleCounts : MeasurementSettings::FollowSampleCounts);
    if (options.samples > 0)
        measurement.setSamples(options.samples);
    publishResults(&measurement, &backend);
    uiutils::apps::Instrument instrument(backend);
    QQmlApplicationEngine engine;
    instrument.showTo(&engine);
    QQuickWindow* const window = openWindow(engine, &measurement);
    if (!window)
        return complain(Texts::tr(
                "The main page could not be loaded, for the reason given above. Check that the QML modules QtQuick, "
                "QtQuick.Controls, QtQuick.Layouts and QtQuick.Window are installed."));

    auto* const report = window->property("report").value<LoopbackReport*>();
    report->keepFirstSettings();
    auto* const camera = window->property("camera").value<ScreenCamera*>();
    Tour tour(window, &measurement, report, camera, options.root + QStringLiteral("/pictures/"));
    const int exitCode = options.isTour || isOffScreen ? runTour(tour) : QCoreApplication::exec();
    list(Texts::tr("Reports:"), report->savedFiles());
    list(Texts::tr("Screenshots:"), camera->pictures());
    list(Texts::tr("Pictures:"), tour.pictures());
    return exitCode;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication::setApplicationName(QStringLiteral("uiutils-demo"));
    QCoreApplication::setApplicationVersion(QStringLiteral(UIUTILS_DEMO_VERSION));
    const DemoOptions options = readEarly(argc, argv, readOptions);
    if (const auto exitCode = exitCodeOf(options))
        return *exitCode;

    // The library's notes for developers do not concern users, who may enable them by QT_LOGGING_RULES.
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    const DisplaySetup display;
    const QGuiApplication application(argc, argv);
    return runDemo(options);
}
