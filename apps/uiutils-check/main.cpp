#include "options.h"

#include "check/pages/pagecheck.h"
#include "check/services/servicecheck.h"
#include "common/complaint.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstdio>

using namespace uiutils;
using check::Finding;

namespace {

QVector<Finding> shownOf(QVector<Finding> findings, bool isQuiet)
{
    const auto isHidden = [isQuiet](const Finding& finding) { return isQuiet && finding.weight == Finding::Warning; };
    findings.erase(std::remove_if(findings.begin(), findings.end(), isHidden), findings.end());
    return findings;
}

int countOf(Finding::Weight weight, const QVector<Finding>& findings)
{
    return int(std::count_if(
            findings.cbegin(), findings.cend(), [weight](const Finding& finding) { return finding.weight == weight; }));
}

bool print(const QByteArray& text)
{
    return std::fwrite(text.constData(), 1, size_t(text.size()), stdout) == size_t(text.size())
            && std::fflush(stdout) == 0;
}

/// A line for each.
QByteArray listOf(const QVector<Finding>& findings)
{
    QByteArray text;
    for (const Finding& finding : findings)
        text += check::toLine(finding).toUtf8() + '\n';
    return text;
}

QVector<Finding> findingsFor(const checker::Options& options)
{
    QVector<names::ItemFacts> items;
    QVector<Finding> findings = check::checkServices(options.services, &items);
    findings += check::checkPages(options.pages, {options.importFolders, items});
    check::sort(&findings);
    return findings;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication::setApplicationName(QStringLiteral("uiutils-check"));
    QCoreApplication::setApplicationVersion(QStringLiteral(UIUTILS_CHECK_VERSION));
    const QCoreApplication application(argc, argv);
    const checker::Options options = checker::readOptions(QCoreApplication::arguments());
    if (const auto exitCode = apps::exitCodeOf(options))
        return *exitCode;

    const QVector<Finding> findings = findingsFor(options);
    const QVector<Finding> shown = shownOf(findings, options.isQuiet);
    if (!print(options.asJson ? check::toJson(shown) : listOf(shown)))
        return apps::complain(QStringLiteral("The findings could not be written."), apps::exitFailed);
    const int errors = countOf(Finding::Error, findings);
    const int warnings = countOf(Finding::Warning, findings);
    return errors > 0 || (options.isStrict && warnings > 0) ? apps::exitFailed : apps::exitDone;
}
