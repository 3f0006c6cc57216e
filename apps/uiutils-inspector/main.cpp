#include "options.h"
#include "texts.h"

#include "common/complaint.h"
#include "common/displaysetup.h"
#include "inspector/inspectorpanel.h"
#include "ui_host/host.h"

#include <QGuiApplication>
#include <QLoggingCategory>
#include <QQuickItem>
#include <QQuickWindow>

using namespace uiutils;
using apps::complain;
using apps::exitFailed;
using inspector::InspectorPanel;
using inspectortool::Options;

namespace {

/// On a large screen the list stands beside the details.
QSize sizeOf(const Options& options, const QQuickItem& panel)
{
    return options.screen.size.isEmpty() ? QSize(int(panel.implicitWidth() * 2), int(panel.implicitHeight() * 1.2))
                                         : options.screen.size;
}

int show(Host& host, const Options& options)
{
    if (apps::DisplaySetup::isOffScreen())
        QQuickWindow::setSceneGraphBackend(QSGRendererInterface::Software);
    // The panel ends before the window that it is in.
    QQuickWindow window;
    InspectorPanel panel(&host);
    host.showTo(panel.engine());
    if (options.screen.dotsPerInch > 0)
        apps::useDensity(panel.engine(), options.screen.dotsPerInch);
    apps::useTheme(panel.engine(), options.theme);
    QQuickItem* const item = panel.load();
    if (!item)
        return complain(panel.error());
    item->setParentItem(window.contentItem());
    panel.engine()->setIncubationController(window.incubationController());
    const auto fill = [&window, item] { item->setSize(window.size()); };
    QObject::connect(&window, &QWindow::widthChanged, item, fill);
    QObject::connect(&window, &QWindow::heightChanged, item, fill);
    window.setTitle(inspectortool::Texts::tr("Inspector"));
    window.resize(sizeOf(options, *item));
    window.show();
    return QCoreApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication::setApplicationName(QStringLiteral("uiutils-inspector"));
    QCoreApplication::setApplicationVersion(QStringLiteral(UIUTILS_INSPECTOR_VERSION));
    const Options options = apps::readEarly(argc, argv, inspectortool::readOptions);
    if (const auto exitCode = apps::exitCodeOf(options))
        return *exitCode;

    // The library's notes for developers do not concern users, who may enable them by QT_LOGGING_RULES.
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false\nqt.virtualkeyboard.hunspell=false"));
    const apps::DisplaySetup display;
    apps::DisplaySetup::offerScreenKeyboard();
    const QGuiApplication application(argc, argv);
    if (options.isEmbedded || !qEnvironmentVariableIsSet("KIV_PLATFORM"))
        qputenv("KIV_PLATFORM", options.isEmbedded ? "embedded" : "bus");
    Host host;
    if (!host.start({options.serviceFolders, options.root}))
        return exitFailed;
    if (!options.language.isEmpty() && !host.setLanguage(options.language))
        return complain(inspectortool::Texts::tr("There is no language \"%1\".").arg(options.language));
    return show(host, options);
}
