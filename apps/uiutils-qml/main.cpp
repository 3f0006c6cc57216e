#include "options.h"
#include "pageaudit.h"
#include "pagetranslations.h"
#include "pagewindow.h"
#include "texts.h"

#include "audit/screenaudit.h"
#include "common/complaint.h"
#include "common/displaysetup.h"
#include "service/kivdata.h"
#include "service/manifest.h"
#include "ui_host/host.h"

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

/// Prints one line for each item: its name in QML, type and value, separated by tabs.
int list()
{
    QStringList lines;
    const QStringList ids = Manifest::getKivIds(QString(), QString());
    for (const QString& id : ids) {
        if (const KivData* item = Manifest::getKivData(id))
            lines += QStringList {item->getQmlTag(), item->getType(), item->getValueString()}.join(QLatin1Char('\t'));
    }
    lines.sort();
    for (const QString& line : qAsConst(lines))
        std::printf("%s\n", qUtf8Printable(line));
    return exitDone;
}

void finish(const QString& problem)
{
    QCoreApplication::exit(problem.isEmpty() ? exitDone : complain(problem));
}

int audit(QQmlEngine* engine, QQuickWindow* window, const Options& options)
{
    const QStringList complaints = qmltool::auditPage(engine, window, options.screen.dotsPerInch);
    for (const QString& complaint : complaints)
        std::printf("%s\n", qUtf8Printable(complaint));
    return complaints.isEmpty() ? exitDone : exitFailed;
}

void work(QQmlEngine* engine, QQuickWindow* window, const Options& options)
{
    if (options.isAudit)
        QCoreApplication::exit(audit(engine, window, options));
    else
        qmltool::takePicture(window, options.picture, finish);
}

int show(Host& host, const Options& options)
{
    if (apps::DisplaySetup::isOffScreen())
        QQuickWindow::setSceneGraphBackend(QSGRendererInterface::Software);
    QQmlEngine engine;
    host.showTo(&engine);
    for (const QString& folder : options.importFolders)
        engine.addImportPath(folder);
    QObject::connect(&engine, &QQmlEngine::quit, qApp, &QCoreApplication::quit, Qt::QueuedConnection);
    QObject::connect(&engine, &QQmlEngine::exit, qApp, &QCoreApplication::exit, Qt::QueuedConnection);

    if (options.screen.dotsPerInch > 0)
        apps::useDensity(&engine, options.screen.dotsPerInch);
    if (options.isAudit)
        audit::ScreenAudit::prepare();
    const PageWindow page(&engine, options.page, options.screen.size);
    if (!page.window())
        return complain(page.error());
    if (options.isAudit || !options.picture.isEmpty()) {
        qmltool::whenDrawn(page.window(), [&](const QString& problem) {
            if (problem.isEmpty())
                work(&engine, page.window(), options);
            else
                finish(problem);
        });
    }
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
    QLoggingCategory::setFilterRules(
            QStringLiteral("default.debug=false\nqt.virtualkeyboard.hunspell=false\nqml.debug=true"));
    const apps::DisplaySetup display;
    apps::DisplaySetup::offerScreenKeyboard();
    const QGuiApplication application(argc, argv);
    const qmltool::PageTranslations translations(options.page);
    const QStringList problems = translations.problems();
    for (const QString& problem : problems)
        complain(problem);
    Host host;
    if (!host.start({options.serviceFolders, options.root, {}, {}, translations.folders()}))
        return exitFailed;
    if (!options.language.isEmpty() && !host.setLanguage(options.language))
        return complain(qmltool::Texts::tr("There is no language \"%1\".").arg(options.language));
    return options.page.isEmpty() ? list() : show(host, options);
}
