#include "common/commandline.h"
#include "common/complaint.h"
#include "common/displaysetup.h"
#include "common/screen.h"
#include "common/translations.h"
#include "demooptions.h"
#include "demotypes.h"
#include "follower.h"
#include "inspector/inspectorwindow.h"
#include "instrumentroot.h"
#include "loopbackmeasurement.h"
#include "loopbackreport.h"
#include "measurementsettings.h"
#include "resultpublisher.h"
#include "screencamera.h"
#include "texts.h"
#include "tour.h"
#include "ui_host/host.h"

#include <kiv/kivclientinterface.h>

#include <QEventLoop>
#include <QGuiApplication>
#include <QLoggingCategory>
#include <QQmlApplicationEngine>
#include <QQuickWindow>

#include <cstdio>

using namespace uiutils::demo;
using namespace uiutils::apps;
using uiutils::inspector::InspectorWindow;

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
QQuickWindow* openWindow(QQmlApplicationEngine& engine, LoopbackMeasurement* measurement, InspectorWindow* inspector,
        const Screen& screen)
{
    useDensity(&engine, screen.dotsPerInch);
    engine.setInitialProperties({{QStringLiteral("measurement"), QVariant::fromValue(measurement)},
            {QStringLiteral("inspector"), QVariant::fromValue<QObject*>(inspector)},
            {QStringLiteral("width"), screen.size.width()}, {QStringLiteral("height"), screen.size.height()}});
    engine.load(QUrl(QStringLiteral("qrc:/uiutils/demo/Main.qml")));
    return engine.rootObjects().isEmpty() ? nullptr : qobject_cast<QQuickWindow*>(engine.rootObjects().constFirst());
}

/// The pages are made after the first frame. Returns false when the window was closed before.
bool waitForPages(QQuickWindow* window)
{
    const auto isComplete = [window] { return window->property("isComplete").toBool(); };
    QEventLoop loop;
    QObject::connect(window, SIGNAL(isCompleteChanged()), &loop, SLOT(quit()));
    if (!isComplete())
        loop.exec();
    return isComplete();
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

int runFollower(Follower& follower)
{
    QObject::connect(&follower, &Follower::noticed, qApp, [](const QString& text) { say(text); });
    QObject::connect(
            &follower, &Follower::finished, qApp, [] { QCoreApplication::exit(exitDone); }, Qt::QueuedConnection);
    QObject::connect(
            &follower, &Follower::failed, qApp, [](const QString& text) { QCoreApplication::exit(complain(text)); },
            Qt::QueuedConnection);
    QMetaObject::invokeMethod(&follower, &Follower::start, Qt::QueuedConnection);
    return QCoreApplication::exec();
}

int runDemo(const DemoOptions& options)
{
    uiutils::Host host;
    if (!host.start({options.serviceFolders, options.root, resultServices(), {},
                {translationsOf(QStringLiteral("examples"))}}))
        return exitFailed;
    QString error;
    if (!prepareInstrumentRoot(options.root, &error))
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
    publishResults(&measurement, [&host](const QString& name) { return host.ownService(name); });
    InspectorWindow inspector(&host);
    QQmlApplicationEngine engine;
    host.showTo(&engine);
    QQuickWindow* const window = openWindow(engine, &measurement, &inspector, options.screen);
    if (!window)
        return complain(Texts::tr(
                "The main page could not be loaded, for the reason given above. Check that the QML modules QtQuick, "
                "QtQuick.Controls, QtQuick.Layouts and QtQuick.Window are installed."));

    // The program ends with its window.
    QObject::connect(window, &QWindow::visibleChanged, &inspector, [&inspector](bool isVisible) {
        if (!isVisible && inspector.isOpen())
            inspector.toggle();
    });
    if (options.isFollower) {
        Follower follower(host, window, options.root + QStringLiteral("/pictures/"));
        const int exitCode = runFollower(follower);
        list(Texts::tr("Pictures:"), follower.pictures());
        return exitCode;
    }
    if (!waitForPages(window))
        return exitDone;
    auto* const report = window->property("report").value<LoopbackReport*>();
    report->keepFirstSettings();
    auto* const camera = window->property("camera").value<ScreenCamera*>();
    Tour tour(window, &measurement, report, camera, options.root + QStringLiteral("/pictures/"));
    const int exitCode = options.isTour || isOffScreen ? runTour(tour) : QCoreApplication::exec();
    if (tour.hasUsedScreenKeyboard())
        say(Texts::tr("Texts were typed on the on-screen keyboard."));
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
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false\nqt.virtualkeyboard.hunspell=false"));
    const DisplaySetup display;
    DisplaySetup::offerScreenKeyboard();
    const QGuiApplication application(argc, argv);
    return runDemo(options);
}
