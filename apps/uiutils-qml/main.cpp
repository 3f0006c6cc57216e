#include "options.h"
#include "pagewindow.h"

#include "common/displaysetup.h"
#include "common/instrument.h"
#include "common/startup.h"

#include <QGuiApplication>
#include <QLoggingCategory>
#include <QQmlEngine>
#include <QQuickWindow>

#include <cstdio>

using namespace uiutils;
using apps::complain;
using apps::exitDone;
using apps::exitFailed;
using qmltool::Options;
using qmltool::PageWindow;

namespace {

int list(const apps::Instrument& instrument)
{
    const QStringList lines = instrument.listing();
    for (const QString& line : lines)
        std::printf("%s\n", qUtf8Printable(line));
    return exitDone;
}

int show(apps::Instrument& instrument, const Options& options)
{
    if (apps::DisplaySetup::isOffScreen())
        QQuickWindow::setSceneGraphBackend(QSGRendererInterface::Software);
    QQmlEngine engine;
    instrument.showTo(&engine);
    for (const QString& folder : options.importFolders)
        engine.addImportPath(folder);
    QObject::connect(&engine, &QQmlEngine::quit, qApp, &QCoreApplication::quit, Qt::QueuedConnection);
    QObject::connect(&engine, &QQmlEngine::exit, qApp, &QCoreApplication::exit, Qt::QueuedConnection);

    const PageWindow page(&engine, options.page);
    if (!page.window())
        return complain(page.error());
    if (options.picture.isEmpty())
        return QCoreApplication::exec();

    qmltool::takePicture(page.window(), options.picture,
            [](const QString& error) { QCoreApplication::exit(error.isEmpty() ? exitDone : complain(error)); });
    return QCoreApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication::setApplicationName(QStringLiteral("uiutils-qml"));
    QCoreApplication::setApplicationVersion(QStringLiteral(UIUTILS_QML_VERSION));
    const Options options = apps::readEarly(argc, argv, qmltool::readOptions);
    if (const auto exitCode = apps::exitCodeOf(options))
        return *exitCode;

    // The library's notes for developers do not concern users, who may enable them by QT_LOGGING_RULES.
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false\nqml.debug=true"));
    if (!apps::useRoot(options.root))
        return exitFailed;
    const apps::DisplaySetup display;
    const QGuiApplication application(argc, argv);
    const auto instrument = apps::Instrument::start({options.serviceFolders, options.root, {}});
    if (!instrument)
        return exitFailed;
    return options.page.isEmpty() ? list(*instrument) : show(*instrument, options);
}
