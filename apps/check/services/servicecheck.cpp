#include "check/services/servicecheck.h"

#include "check/services/applicabilitycheck.h"
#include "check/services/itemchecks.h"
#include "check/services/servicenames.h"
#include "check/services/simulationchecks.h"

#include "embedded/descriptioncheck_p.h"

#include <QDir>
#include <QFileInfo>

namespace uiutils::check {

namespace {

const QLatin1String ending(".service.json");

/// Files that describe a service, and are not looked at because of their name.
void checkOtherFiles(const QDir& folder, QVector<Finding>* findings)
{
    const QStringList files = folder.entryList({QStringLiteral("*.json")}, QDir::Files, QDir::Name);
    for (const QString& name : files) {
        QFile file(folder.filePath(name));
        constexpr int beginning = 4096;
        if (name.endsWith(ending) || !file.open(QIODevice::ReadOnly))
            continue;
        const QByteArray text = file.read(beginning);
        if (text.contains("\"service\"") && text.contains("\"items\""))
            findings->append({Finding::Warning, folder.filePath(name), 0, 0, QString(),
                    QStringLiteral(
                            "The file looks like a service file, but nothing loads it: the name of a service file ends in \".service.json\".")});
    }
}

QStringList filesOf(const QString& folder, QVector<Finding>* findings)
{
    const QDir dir(folder);
    const QStringList names = dir.entryList({QLatin1Char('*') + ending}, QDir::Files, QDir::Name);
    QStringList files;
    for (const QString& name : names)
        files += dir.filePath(name);
    if (!dir.isReadable())
        findings->append({Finding::Error, folder, 0, 0, QString(), QStringLiteral("The folder cannot be read.")});
    else if (files.isEmpty())
        findings->append({Finding::Error, folder, 0, 0, QString(),
                QStringLiteral("The folder holds no service file, whose name ends in \".service.json\".")});
    checkOtherFiles(dir, findings);
    return files;
}

/// What the checks have missed, in the words of the platform.
void checkByPlatform(ServiceDocument* document)
{
    if (!document->tree.isRead || document->findings.hasErrors())
        return;
    const QString problem = kiv::embedded::serviceProblem(document->description);
    if (problem.isEmpty())
        return;
    const JsonNode* place = document->tree.root.at(problem.section(QLatin1String(": "), 0, 0));
    document->findings.error(
            *place, QStringLiteral("The file cannot be used: %1.").arg(problem.section(QLatin1String(": "), 1)));
}

} // namespace

QVector<Finding> checkServices(const QStringList& filesOrFolders, QVector<names::ItemFacts>* facts)
{
    QVector<Finding> findings;
    QStringList files;
    for (const QString& path : filesOrFolders) {
        if (QFileInfo(path).isDir())
            files += filesOf(path, &findings);
        else
            files += path;
    }
    files.removeDuplicates();

    Documents documents;
    RegexCheck regexes;
    for (const QString& file : qAsConst(files)) {
        documents.push_back(std::make_unique<ServiceDocument>(file));
        ServiceDocument* document = documents.back().get();
        document->read();
        checkItems(document, &regexes);
        checkSimulation(document, &regexes);
        checkByPlatform(document);
    }
    const ServiceNames names(documents);
    checkNames(documents, names);
    checkApplicability(documents, names);
    for (const auto& document : documents) {
        findings += document->findings.finish(document->text, document->itemList());
        if (facts) {
            for (const ServiceItem& item : qAsConst(document->items))
                facts->append(item.facts);
        }
    }
    sort(&findings);
    return findings;
}

} // namespace uiutils::check
