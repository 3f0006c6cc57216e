#include "writercase.h"

#include "core/durablefile.h"
#include "document/reporttemplate.h"
#include "report/reportfilewriter_p.h"
#include "report/reportlisting_p.h"
#include "writers/textreport.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

namespace bench {

namespace {

constexpr int rows = 10'000;
constexpr int files = 5'000;

[[noreturn]] void giveUp(const char* text)
{
    fprintf(stderr, "uiutils-bench: %s\n", text);
    std::exit(1);
}

Result savingCase(const QString& format, const std::function<QString()>& generate, int runs)
{
    const QTemporaryDir folder;
    const Timing timing = interleaved(
            runs,
            [&] {
                if (!uiutils::writeReportFile(folder.filePath(QStringLiteral("ours")), generate().toUtf8(), false).ok)
                    giveUp("the report cannot be saved");
            },
            [&] {
                if (!uiutils::writeFileDurably(folder.filePath(QStringLiteral("floor")), generate().toUtf8()))
                    giveUp("the text cannot be written");
            });
    const QString name = QStringLiteral("saving a report of %L1 rows as %2 / making and writing the text alone");
    return {name.arg(rows).arg(format), QStringLiteral("ms CPU"), timing.ours, timing.floor, 1.3};
}

void makeReports(const QString& folder)
{
    const char* const suffixes[] {".pdf", ".xml", ".html.gz", ".txt", ".json"};
    for (int i = 0; i < files; ++i) {
        QFile file(QStringLiteral("%1/Fiber_Test_%2%3").arg(folder).arg(i).arg(QLatin1String(suffixes[i % 5])));
        if (!file.open(QIODevice::WriteOnly) || file.write("report") < 0)
            giveUp("reports cannot be made");
    }
}

/// Sums up what it has read, so that nobody may leave it out.
qint64 bareListing(const QString& folder)
{
    qint64 sum = 0;
    const QFileInfoList entries = QDir(folder).entryInfoList(QDir::Files, QDir::Unsorted);
    for (const QFileInfo& entry : entries)
        sum += entry.size() + entry.lastModified().toMSecsSinceEpoch();
    return sum;
}

Result listingCase(int runs)
{
    const QTemporaryDir folder;
    makeReports(folder.path());
    const Timing timing = interleaved(
            runs,
            [&] {
                if (uiutils::reportFiles(folder.path()).size() != files)
                    giveUp("reports are missing from the list");
            },
            [&] {
                if (bareListing(folder.path()) == 0)
                    giveUp("the folder cannot be read");
            });
    return {QStringLiteral("list of %L1 saved reports / QDir, sizes and times, unsorted").arg(files),
            QStringLiteral("ms CPU"), timing.ours, timing.floor, 3};
}

} // namespace

QVector<Result> reportCases(int runs)
{
    ReportTemplate report;
    buildReport(report, rows, 0);
    return {savingCase(QStringLiteral("text"), [&] { return uiutils::reportText(report); }, runs),
            savingCase(QStringLiteral("JSON"), [&] { return uiutils::reportJson(report); }, runs), listingCase(runs)};
}

} // namespace bench
