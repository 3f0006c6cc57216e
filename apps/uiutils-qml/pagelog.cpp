#include "pagelog.h"

#include "module/modulepath.h"

#include <QDir>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QQmlEngine>
#include <QUrl>

#include <algorithm>

namespace uiutils::qmltool {

namespace {

bool isBelow(const QString& file, const QString& folder)
{
    return !folder.isEmpty() && file.startsWith(QFileInfo(folder).canonicalFilePath() + QLatin1Char('/'));
}

bool isOfUser(const QString& file)
{
    const QString place = QFileInfo(file).canonicalFilePath();
    return !place.isEmpty() && !isBelow(place, qmlImportPath())
            && !isBelow(place, QLibraryInfo::location(QLibraryInfo::Qml2ImportsPath));
}

/// The file as the checks name it: like the page on the command line, or below its folder.
QString nameOf(const QString& file, const QString& page)
{
    const QString beside = QDir(QFileInfo(page).absolutePath()).relativeFilePath(file);
    return beside.startsWith(QLatin1String("..")) ? file
                                                  : QDir::cleanPath(QFileInfo(page).path() + QLatin1Char('/') + beside);
}

check::Finding findingOf(const QQmlError& error, const QString& page)
{
    check::Finding finding;
    // It works as it always did, for the time being.
    finding.weight = error.description().contains(QLatin1String("deprecated")) ? check::Finding::Warning
                                                                               : check::Finding::Error;
    finding.file = nameOf(error.url().toLocalFile(), page);
    finding.line = std::max(error.line(), 0);
    finding.column = std::max(error.column(), 0);
    finding.message = QStringLiteral("When the page runs: %1").arg(error.description().simplified());
    return finding;
}

} // namespace

PageLog::PageLog(const QString& page)
    : m_page(page)
{
}

void PageLog::follow(QQmlEngine* engine, bool isQuiet)
{
    engine->setOutputWarningsToStandardError(!isQuiet);
    connect(engine, &QQmlEngine::warnings, this, &PageLog::add);
}

void PageLog::add(const QList<QQmlError>& errors)
{
    for (const QQmlError& error : errors) {
        if (error.url().isLocalFile() && isOfUser(error.url().toLocalFile()))
            m_findings.append(findingOf(error, m_page));
    }
}

void PageLog::addProblem(const QString& problem)
{
    if (!problem.isEmpty())
        m_findings.append({check::Finding::Error, m_page, 0, 0, QString(), problem});
}

bool PageLog::hasErrors() const
{
    return std::any_of(m_findings.cbegin(), m_findings.cend(),
            [](const check::Finding& finding) { return finding.weight == check::Finding::Error; });
}

} // namespace uiutils::qmltool
