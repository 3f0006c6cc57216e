#include "options.h"

#include "check/servicecheck.h"
#include "common/complaint.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstdio>

using namespace uiutils;
using check::Finding;

namespace {

int countOf(Finding::Weight weight, const QVector<Finding>& findings)
{
    return int(std::count_if(
            findings.cbegin(), findings.cend(), [weight](const Finding& finding) { return finding.weight == weight; }));
}

void print(const QByteArray& text)
{
    std::fwrite(text.constData(), 1, size_t(text.size()), stdout);
}

/// The findings, a line each, and how many there are.
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
    if (options.isQuiet)
        findings.erase(std::remove_if(findings.begin(), findings.end(),
                               [](const Finding& finding) { return finding.weight == Finding::Warning; }),
                findings.end());
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
    print(options.asJson ? check::toJson(findings) : listOf(findings));
    const int errors = countOf(Finding::Error, findings);
    const int warnings = countOf(Finding::Warning, findings);
    return errors > 0 || (options.isStrict && warnings > 0) ? apps::exitFailed : apps::exitDone;
}
