#include "options.h"
#include "page.h"
#include "pageaudit.h"
#include "pagejudge.h"
#include "pagelog.h"
#include "pagemodules.h"
#include "pagereload.h"
#include "pagetest.h"
#include "pagetranslations.h"
#include "pagewindow.h"
#include "replaydesk.h"
#include "steppedtime.h"
#include "texts.h"

#include "audit/screenaudit.h"
#include "common/complaint.h"
#include "common/displaysetup.h"
#include "inspector/inspectorpanel.h"
#include "languages/languages.h"
#include "service/kivdata.h"
#include "service/manifest.h"
#include "ui_host/describedservices_p.h"
#include "ui_host/host.h"

#include <QGuiApplication>
#include <QLoggingCategory>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <optional>

using namespace uiutils;
using apps::complain;
using apps::exitDone;
using apps::exitFailed;
using inspector::InspectorPanel;
using qmltool::Options;
using qmltool::Page;
using qmltool::PageLog;
using qmltool::PageModules;
using qmltool::PageReload;
using qmltool::PageWindow;
using qmltool::Translations;

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

/// The page is drawn, and what it had to say then is said; what it does later is its own matter.
void finishCheck()
{
    constexpr int settlingMs = 200;
    QTimer::singleShot(settlingMs, qApp, [] { QCoreApplication::exit(exitDone); });
}

int grabbed(int exitCode, const PageLog& log)
{
    if (exitCode != exitDone || !log.hasErrors())
        return exitCode;
    return complain(qmltool::Texts::tr("The picture was written, but the page reported what is wrong, see above."));
}

int audit(QQmlEngine* engine, QQuickWindow* window, const Options& options)
{
    const QStringList complaints = qmltool::auditPage(engine, window, options.screen.dotsPerInch);
    for (const QString& complaint : complaints)
        std::printf("%s\n", qUtf8Printable(complaint));
    return complaints.isEmpty() ? exitDone : exitFailed;
}

/// What stands in for the world around a page: the services of a recording, and the time of a test.
struct Surroundings
{
    std::unique_ptr<qmltool::ReplayDesk> desk;
    std::unique_ptr<qmltool::SteppedTime> time;
};

void work(QQmlEngine* engine, QQuickWindow* window, const Surroundings& around, const Options& options)
{
    if (around.time)
        QCoreApplication::exit(qmltool::testPage(window, around.desk->player(), around.time.get(), options));
    else if (options.isCheck)
        finishCheck();
    else if (options.isAudit)
        QCoreApplication::exit(audit(engine, window, options));
    else
        qmltool::takePicture(window, options.picture, finish);
}

/// An engine that knows the services and nothing of a page.
std::unique_ptr<QQmlEngine> makeEngine(Host& host, PageModules& modules, const Options& options)
{
    auto engine = std::make_unique<QQmlEngine>();
    host.showTo(engine.get());
    for (const QString& folder : options.importFolders)
        engine->addImportPath(folder);
    modules.showTo(engine.get());
    QObject::connect(engine.get(), &QQmlEngine::quit, qApp, &QCoreApplication::quit, Qt::QueuedConnection);
    QObject::connect(engine.get(), &QQmlEngine::exit, qApp, &QCoreApplication::exit, Qt::QueuedConnection);
    if (options.screen.dotsPerInch > 0)
        apps::useDensity(engine.get(), options.screen.dotsPerInch);
    return engine;
}

std::unique_ptr<Page> loadOnce(Host& host, PageModules& modules, PageLog* log, const Options& options)
{
    std::unique_ptr<QQmlEngine> engine = makeEngine(host, modules, options);
    if (options.isCheck || !options.picture.isEmpty())
        log->follow(engine.get(), options.isCheck);
    return std::make_unique<Page>(std::move(engine), options.page);
}

std::unique_ptr<Page> loadPage(Host& host, PageModules& modules, PageLog* log, const Options& options)
{
    std::unique_ptr<Page> page = loadOnce(host, modules, log, options);
    if (!modules.help(page->error()))
        return page;
    page.reset();
    log->clear();
    return loadOnce(host, modules, log, options);
}

/// Null, after an error message, when the panel could not be made.
std::unique_ptr<InspectorPanel> makePanel(Host& host, const Options& options)
{
    auto panel = std::make_unique<InspectorPanel>(&host);
    if (options.screen.dotsPerInch > 0)
        apps::useDensity(panel->engine(), options.screen.dotsPerInch);
    if (panel->load())
        return panel;
    complain(panel->error());
    return nullptr;
}

/// Whether somebody works with the page, so that it follows its files.
bool isUsed(const Options& options, const Surroundings& around)
{
    return !options.isAudit && !options.isCheck && options.picture.isEmpty() && !around.time;
}

/// What has to be done before the first window.
void prepare(const Options& options)
{
    if (apps::DisplaySetup::isOffScreen())
        QQuickWindow::setSceneGraphBackend(QSGRendererInterface::Software);
    if (options.isAudit)
        audit::ScreenAudit::prepare();
}

/// What is told at the end of a page that nobody works with. The page may end the program itself, before it is drawn.
int ended(int exitCode, const QVector<check::Finding>& before, const PageLog& log, const Options& options)
{
    if (options.isCheck)
        return std::max(exitCode, qmltool::tell(before, log.findings(), options));
    return options.picture.isEmpty() ? exitCode : grabbed(exitCode, log);
}

/// Where the service files are that the services come from; empty if they come from elsewhere.
QStringList describingFolders(const Options& options)
{
    if (!options.recording.isEmpty() || qEnvironmentVariable("KIV_PLATFORM") == QLatin1String("bus"))
        return {};
    return options.serviceFolders.isEmpty() ? defaultServiceFolders() : options.serviceFolders;
}

int show(Host& host, const Surroundings& around, const Options& options)
{
    prepare(options);
    const QVector<check::Finding> before
            = options.isCheck ? qmltool::judgePage(options, describingFolders(options)) : QVector<check::Finding>();
    // It outlives the window that it is shown in.
    const std::unique_ptr<InspectorPanel> panel = options.isInspected ? makePanel(host, options) : nullptr;
    if (options.isInspected && !panel)
        return exitFailed;
    PageLog log(options.page);
    PageModules modules;
    PageWindow window(options.screen.size);
    if (panel)
        window.setPanel(panel->item());
    std::optional<PageReload> reload;
    // Before the page is read, so that no change is missed.
    if (isUsed(options, around))
        reload.emplace(&host, &window, options.page, options.importFolders,
                [&host, &modules, &log, &options] { return loadPage(host, modules, &log, options); });
    auto page = loadPage(host, modules, &log, options);
    if (!page->root() && options.isCheck) {
        log.add(page->errors());
        log.addProblem(page->errors().isEmpty() ? page->error() : QString());
        return qmltool::tell(before, log.findings(), options);
    }
    if (!page->root())
        return complain(page->error());
    window.show(std::move(page));
    if (!reload) {
        qmltool::whenDrawn(window.window(), [&](const QString& problem) {
            if (problem.isEmpty())
                work(window.page()->engine(), window.window(), around, options);
            else
                finish(problem);
        });
    } else if (around.desk) {
        around.desk->play(options);
    }
    return ended(QCoreApplication::exec(), before, log, options);
}

void complainOf(const Translations& translations)
{
    const QStringList problems = translations.problems();
    for (const QString& problem : problems)
        complain(problem);
}

/// Puts a recording in place of the service files, if the options name one. Returns false, having complained, when it
/// cannot be used.
bool surround(const Options& options, Surroundings* around, HostSetup* setup)
{
    if (options.recording.isEmpty())
        return true;
    QString problem;
    around->desk = std::make_unique<qmltool::ReplayDesk>();
    if (!around->desk->open(options, &problem)) {
        complain(problem);
        return false;
    }
    setup->services = around->desk->services();
    if (options.moments.isEmpty())
        return true;
    around->time = std::make_unique<qmltool::SteppedTime>();
    around->time->setNow(options.fromMs);
    return true;
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
    // What a test or a check sees does not depend on anybody's screen.
    if (!options.moments.isEmpty() || options.isCheck)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const apps::DisplaySetup display;
    apps::DisplaySetup::offerScreenKeyboard();
    const QGuiApplication application(argc, argv);
    Translations ofPage(qmltool::translationsOfPage(options.page));
    const QStringList serviceFolders
            = options.serviceFolders.isEmpty() ? defaultServiceFolders() : options.serviceFolders;
    Translations ofServices(qmltool::translationsOfServices(serviceFolders));
    complainOf(ofPage);
    complainOf(ofServices);
    Surroundings around;
    HostSetup setup {options.serviceFolders, options.root, {}, {}, ofPage.folders()};
    if (!surround(options, &around, &setup))
        return exitFailed;
    Host host;
    if (!host.start(setup))
        return exitFailed;
    Languages::instance()->setServiceFolders(ofServices.folders());
    for (Translations* translations : {&ofPage, &ofServices})
        translations->follow([translations] {
            complainOf(*translations);
            Languages::instance()->readAgain();
        });
    if (!options.language.isEmpty() && !host.setLanguage(options.language))
        return complain(qmltool::Texts::tr("There is no language \"%1\".").arg(options.language));
    return options.page.isEmpty() ? list() : show(host, around, options);
}
