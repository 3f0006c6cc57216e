#include "inputplugins.h"
#include "language.h"
#include "options.h"
#include "processlimits.h"
#include "texts.h"
#include "viewerdocument.h"
#include "viewertypes.h"

#include "common/complaint.h"
#include "common/displaysetup.h"

#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickWindow>

#include <cstdlib>
#include <vector>

using namespace uiutils;
using apps::complain;
using apps::exitFailed;
using viewer::Options;
using viewer::ViewerDocument;

namespace {

/// The part of the command line that Qt reads: titles and file names are not options of Qt.
class QtArguments
{
public:
    QtArguments(const char* program, const QStringList& plugins)
        : m_words {program}
    {
        for (const QString& plugin : plugins)
            m_words << "-plugin" << plugin.toLocal8Bit();
        for (QByteArray& word : m_words)
            m_pointers.push_back(word.data());
        m_count = int(m_pointers.size());
        m_pointers.push_back(nullptr);
    }
    Q_DISABLE_COPY_MOVE(QtArguments)

    int& count() { return m_count; }
    char** values() { return m_pointers.data(); }

private:
    QList<QByteArray> m_words;
    std::vector<char*> m_pointers;
    int m_count = 0;
};

bool hasWindowSystem()
{
    const QString platform = QGuiApplication::platformName();
    return platform == QLatin1String("xcb") || platform.startsWith(QLatin1String("wayland"));
}

bool openWindow(QQmlApplicationEngine& engine, ViewerDocument* document, const Options& options)
{
    engine.setInitialProperties({
            {QStringLiteral("document"), QVariant::fromValue(document)},
            {QStringLiteral("title"), options.title},
            {QStringLiteral("dotsPerInch"), options.dotsPerInch},
            {QStringLiteral("isFullScreen"), options.isFullScreen && !hasWindowSystem()},
    });
    engine.load(QUrl(QStringLiteral("qrc:/uiutils/viewer/Main.qml")));
    return !engine.rootObjects().isEmpty();
}

int show(const Options& options)
{
    viewer::registerViewerTypes();
    // The screen draws its own controls over this style; another style would show through.
    qputenv("QT_QUICK_CONTROLS_STYLE", "Default");
    if (apps::DisplaySetup::isOffScreen())
        QQuickWindow::setSceneGraphBackend(QSGRendererInterface::Software);

    ViewerDocument document;
    document.open(options.file);
    int exitCode = exitFailed;
    {
        QQmlApplicationEngine engine;
        if (openWindow(engine, &document, options))
            exitCode = QCoreApplication::exec();
        else
            complain(viewer::Texts::tr(
                    "The screen could not be loaded, for the reason given above. Check that the QML modules QtQuick, "
                    "QtQuick.Controls, QtQuick.Layouts and QtQuick.Window are installed."));
    }
    if (document.state() == ViewerDocument::Failed)
        exitCode = exitFailed;
    // A file that keeps its reader busy must not keep the program running.
    constexpr int patienceMs = 500;
    if (!document.stop(patienceMs))
        std::_Exit(exitCode);
    return exitCode;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication::setApplicationName(QStringLiteral("pdf_viewer"));
    QCoreApplication::setApplicationVersion(QStringLiteral(UIUTILS_VIEWER_VERSION));
    const Options options = apps::readEarly(argc, argv, viewer::readOptions);
    if (const auto exitCode = apps::exitCodeOf(options))
        return *exitCode;

    viewer::limitProcess();
    const bool isPlatformGiven = !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
    const apps::DisplaySetup display;
    QtArguments arguments(argv[0], viewer::usablePlugins(options.plugins, qgetenv("QT_QPA_PLATFORM")));
    const QGuiApplication application(arguments.count(), arguments.values());
    const viewer::Language language(options.language);
    if (!language.isKnown())
        return complain(viewer::Texts::tr("There is no language \"%1\".").arg(options.language));
    // A window that nobody can see would never be closed.
    if (!isPlatformGiven && apps::DisplaySetup::isOffScreen()) {
        return complain(viewer::Texts::tr(
                "There is no display to show %1 on. Set DISPLAY or WAYLAND_DISPLAY, or QT_QPA_PLATFORM to what draws "
                "on this screen, such as eglfs or linuxfb.")
                                .arg(options.file));
    }
    return show(options);
}
