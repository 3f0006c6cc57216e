#include "base/paths_p.h"
#include "common/complaint.h"
#include "common/displaysetup.h"
#include "common/standardstreams.h"
#include "console.h"
#include "conversion.h"
#include "crew.h"
#include "options.h"
#include "plan.h"
#include "signals.h"
#include "streams.h"
#include "texts.h"
#include "ui_host/describedservices_p.h"
#include "ui_host/serviceplatform_p.h"
#include "worker.h"
#include "workspace.h"

#include <embedded/embeddedbackend.h>

#include <QFile>
#include <QGuiApplication>

#include <functional>
#include <optional>

using namespace uiutils::convert;
using uiutils::apps::exitDone;
using uiutils::apps::exitFailed;
using uiutils::apps::exitMisused;

namespace {

int failed(const QString& message, int exitCode)
{
    say(message);
    return exitCode;
}

int answer(const QString& message)
{
    QString error;
    return writeStandardOutput(message.toUtf8(), &error) ? exitDone : failed(error, exitFailed);
}

/// False when the call must fail because of what is missing.
bool publishServices(kiv::embedded::EmbeddedBackend& backend, const Options& options)
{
    const QStringList problems = backend.loadFolders(options.serviceFolders);
    for (const QString& problem : problems)
        say(problem);
    if (options.isStrict && !problems.isEmpty())
        return false;
    if (!backend.serviceNames().isEmpty())
        return true;
    say(Texts::tr("No service could be loaded from %1. Name a folder with service files with --services.")
                    .arg(options.serviceFolders.join(QStringLiteral(", "))));
    return false;
}

/// The services of the tables and plots: those of files, else those on the bus if the environment asks for them.
bool useServices(kiv::embedded::EmbeddedBackend& backend, const Options& options,
        std::unique_ptr<uiutils::ServicePlatform>* platform)
{
    using uiutils::PlatformKind;
    if (!options.serviceFolders.isEmpty())
        return publishServices(backend, options);
    QString problem;
    const auto kind = uiutils::chosenPlatform(PlatformKind::Embedded, &problem);
    if (!kind)
        say(problem);
    if (kind != PlatformKind::Bus)
        return bool(kind);
    QStringList problems;
    *platform = uiutils::ServicePlatform::start({}, &problems);
    for (const QString& each : qAsConst(problems))
        say(each);
    return bool(*platform);
}

/// The caller's own root is not filled, and an HTML page without its icons looks complete at first sight.
void warnOfMissingIcons(const Plan& plan)
{
    if (!plan.writes(Format::NeedsIconFiles) || QFile::exists(uiutils::onDisk(uiutils::paths::passIcon)))
        return;
    say(Texts::tr("warning: HTML pages will show no status icons, because UIUTILS_ROOT names %1, where there are none.")
                    .arg(qEnvironmentVariable("UIUTILS_ROOT")));
}

/// What is done with a conversion that is prepared; returns the process's exit status.
using Use = std::function<int(Conversion& conversion)>;

int convert(const Options& options, const Plan& plan, const QString& scratchFolder, const Use& use)
{
    kiv::embedded::EmbeddedBackend backend;
    std::unique_ptr<uiutils::ServicePlatform> platform;
    if (!useServices(backend, options, &platform))
        return exitFailed;
    warnOfMissingIcons(plan);
    const QString problem = options.page.logoFile.isEmpty() ? QString() : logoProblem(options.page.logoFile);
    if (!problem.isEmpty())
        return failed(problem, exitMisused);
    Conversion conversion(plan, options, scratchFolder);
    return use(conversion);
}

/// Plots need only the fonts of a display: one that does not answer must not matter.
void forgetDisplay()
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qunsetenv("QT_QPA_PLATFORMTHEME");
}

int prepare(char** argv, const Options& options, const Plan& plan, const Use& use)
{
    Workspace workspace;
    QString error;
    if (!workspace.prepare(&error))
        return failed(error, exitFailed);
    std::optional<uiutils::apps::DisplaySetup> display;
    if (options.opensWindow())
        display.emplace();
    else
        forgetDisplay();
    // A document's name after "--" could look like an option of the toolkit.
    int nameOnly = 1;
    const QGuiApplication application(nameOnly, argv);
    if (options.opensWindow() && uiutils::apps::DisplaySetup::isOffScreen())
        return failed(Texts::tr("There is no display to show the pages on. To get pictures of them, name a folder with "
                                "--output."),
                exitFailed);
    return convert(options, plan, workspace.path(), use);
}

/// One document needs no other process.
int convertAll(char** argv, const Options& options, const Plan& plan)
{
    if (plan.jobs.size() == 1)
        return prepare(argv, options, plan, [](Conversion& conversion) { return conversion.run(); });
    const auto work = [&](int channel) {
        setMessageSink([channel](const QString& message) { sendLine(channel, answers::message + message.toUtf8()); });
        return prepare(argv, options, plan, [&](Conversion& conversion) {
            serve(channel, conversion, plan);
            return exitDone;
        });
    };
    return Crew(plan, options.jobs, work).run();
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication::setApplicationName(QStringLiteral("reportconvert"));
    QCoreApplication::setApplicationVersion(QStringLiteral(UIUTILS_CONVERT_VERSION));
    uiutils::apps::holdStandardStreams();
    holdSignals();
    installWarningHandler();

    const Options options = uiutils::apps::readEarly(argc, argv, readOptions);
    if (options.outcome == Options::Misused)
        return failed(options.message, exitMisused);
    if (options.outcome == Options::Answered)
        return answer(options.message);
    const Plan plan = makePlan(options);
    if (!plan.error.isEmpty())
        return failed(plan.error, exitMisused);

    return convertAll(argv, options, plan);
}
