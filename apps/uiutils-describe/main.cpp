#include "options.h"
#include "sources.h"

#include "common/complaint.h"
#include "common/standardstreams.h"
#include "modules/modulefiles.h"
#include "modules/moduleplan.h"
#include "names/itemfacts.h"
#include "servicetexts/catalogueupdate.h"

#include <QCoreApplication>
#include <QLoggingCategory>

#include <cstdio>

using namespace uiutils;
using apps::complain;
using apps::exitDone;
using apps::exitFailed;
using describe::Options;

namespace {

int writeModules(const Options& options)
{
    const modules::Plan plan = modules::plan(names::factsOfManifests());
    const modules::Place place {options.output, options.importName};
    QStringList problems = plan.problems + modules::write(plan.modules, place);
    const QString problem
            = options.resources.isEmpty() ? QString() : modules::writeResources(plan.modules, place, options.resources);
    if (!problem.isEmpty())
        problems += problem;
    for (const QString& note : plan.notes)
        complain(note);
    for (const QString& each : qAsConst(problems))
        complain(each);
    return problems.isEmpty() ? exitDone : exitFailed;
}

int updateCatalogues(const Options& options)
{
    const QStringList files = servicetexts::serviceFilesIn(options.services);
    QStringList problems;
    if (files.isEmpty())
        problems += QStringLiteral(
                "There is no service file in %1. Name a folder that has some, or a file, with --services.")
                            .arg(options.services.join(QStringLiteral(", ")));
    const servicetexts::ServiceTexts texts = servicetexts::textsOf(files, &problems);
    // The texts of a file that cannot be read would count as vanished.
    const QStringList summaries
            = problems.isEmpty() ? servicetexts::updateCatalogues(options.catalogues, texts, &problems) : QStringList();
    for (const QString& summary : summaries)
        std::printf("%s\n", qUtf8Printable(summary));
    for (const QString& problem : qAsConst(problems))
        complain(problem);
    return problems.isEmpty() ? exitDone : exitFailed;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication::setApplicationName(QStringLiteral("uiutils-describe"));
    QCoreApplication::setApplicationVersion(QStringLiteral(UIUTILS_DESCRIBE_VERSION));
    apps::holdStandardStreams();
    const QCoreApplication application(argc, argv);
    // The library's notes for developers do not concern users, who may enable them by QT_LOGGING_RULES.
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    const Options options = describe::readOptions(QCoreApplication::arguments());
    if (const auto exitCode = apps::exitCodeOf(options))
        return *exitCode;
    if (!options.catalogues.isEmpty())
        return updateCatalogues(options);
    describe::Sources sources;
    return sources.open(options) ? writeModules(options) : exitFailed;
}
