#include "check/finding.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <tuple>

namespace uiutils::check {

namespace {

auto placeOf(const Finding& finding)
{
    return std::tie(finding.file, finding.line, finding.column, finding.item, finding.message);
}

QString weightName(Finding::Weight weight)
{
    return weight == Finding::Error ? QStringLiteral("error") : QStringLiteral("warning");
}

int countOf(Finding::Weight weight, const QVector<Finding>& findings)
{
    return int(std::count_if(
            findings.cbegin(), findings.cend(), [weight](const Finding& finding) { return finding.weight == weight; }));
}

} // namespace

void sort(QVector<Finding>* findings)
{
    std::stable_sort(findings->begin(), findings->end(),
            [](const Finding& a, const Finding& b) { return placeOf(a) < placeOf(b); });
    findings->erase(std::unique(findings->begin(), findings->end(),
                            [](const Finding& a, const Finding& b) { return placeOf(a) == placeOf(b); }),
            findings->end());
}

QString toLine(const Finding& finding)
{
    QString line = finding.file;
    if (finding.line > 0)
        line += QLatin1Char(':') + QString::number(finding.line);
    if (finding.line > 0 && finding.column > 0)
        line += QLatin1Char(':') + QString::number(finding.column);
    line += QLatin1String(": ") + weightName(finding.weight) + QLatin1String(": ") + finding.message;
    if (!finding.item.isEmpty())
        line += QLatin1String(" [") + finding.item + QLatin1Char(']');
    // Names of files and what stands in them come from strangers: a finding is one line and moves no cursor.
    std::replace_if(
            line.begin(), line.end(), [](QChar c) { return !c.isPrint() && !c.isSurrogate(); }, QLatin1Char(' '));
    return line;
}

QByteArray toJson(const QVector<Finding>& findings)
{
    QJsonArray list;
    for (const Finding& finding : findings)
        list.append(QJsonObject {{QStringLiteral("weight"), weightName(finding.weight)},
                {QStringLiteral("file"), finding.file}, {QStringLiteral("line"), finding.line},
                {QStringLiteral("column"), finding.column}, {QStringLiteral("item"), finding.item},
                {QStringLiteral("message"), finding.message}});
    return QJsonDocument(QJsonObject {{QStringLiteral("findings"), list},
                                 {QStringLiteral("errors"), countOf(Finding::Error, findings)},
                                 {QStringLiteral("warnings"), countOf(Finding::Warning, findings)}})
            .toJson();
}

} // namespace uiutils::check
