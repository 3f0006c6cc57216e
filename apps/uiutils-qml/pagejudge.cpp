#include "pagejudge.h"

#include "check/pages/pagecheck.h"
#include "check/services/servicecheck.h"
#include "common/complaint.h"
#include "names/itemfacts.h"

#include <algorithm>
#include <cstdio>

namespace uiutils::qmltool {

using check::Finding;

QVector<Finding> judgePage(const Options& options, const QStringList& serviceFolders)
{
    QVector<Finding> findings = check::checkPages({options.page}, {options.importFolders, names::factsOfManifests()});
    if (!serviceFolders.isEmpty())
        findings += check::checkServices(serviceFolders, nullptr);
    return findings;
}

int tell(QVector<Finding> before, const QVector<Finding>& running, const Options& options)
{
    QVector<Finding> all = before;
    for (const Finding& finding : running) {
        const bool isExplained = std::any_of(before.cbegin(), before.cend(), [&finding](const Finding& known) {
            return known.weight == Finding::Error && known.file == finding.file
                    && (known.line == finding.line || finding.line == 0);
        });
        if (!isExplained)
            all.append(finding);
    }
    check::sort(&all);
    if (options.isJson)
        std::printf("%s", check::toJson(all).constData());
    for (const Finding& finding : qAsConst(all)) {
        if (!options.isJson)
            std::printf("%s\n", qUtf8Printable(check::toLine(finding)));
    }
    const bool isWrong = std::any_of(
            all.cbegin(), all.cend(), [](const Finding& finding) { return finding.weight == Finding::Error; });
    return isWrong ? apps::exitFailed : apps::exitDone;
}

} // namespace uiutils::qmltool
