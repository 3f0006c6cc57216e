#include "writercase.h"

#include "base/durablefile_p.h"
#include "base/paths_p.h"
#include "document/reporttemplate.h"
#include "report/nsreport.h"
#include "report/report.h"
#include "report/reportlisting_p.h"
#include "writers/text/textreport.h"

#include <kiv/kivnotificationmodelmanager.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

namespace bench {

namespace {

constexpr int savedRows = 1000;
const char* const suffixes[] {"pdf", "xml", "html", "txt", "json"};
constexpr int files = 5'000;

[[noreturn]] void giveUp(const char* text)
{
    fprintf(stderr, "uiutils-bench: %s\n", text);
    std::exit(1);
}

/// A page's controller over a document of a thousand rows.
class BenchReport : public Report
{
public:
    BenchReport()
    {
        for (int format = 0; format <= NSReport::REPORT_FORMAT_ALL; ++format)
            setFormatApplicable(format, true);
        setFolder(QStringLiteral("bench"));
        getSetting(QStringLiteral("reportName"))->setValue(QStringLiteral("report"));
        buildReport(document(), savedRows, 0);
    }

    using Report::loadSettings;

    void choose(int format) { getSetting(QStringLiteral("reportFormat"))->setValue(format); }
    QString generateTxtReport() override { return uiutils::reportText(document()); }
    QString generateJsonReport() override { return uiutils::reportJson(document()); }

    /// What a save in the format writes into the report's file.
    QByteArray contents(int format)
    {
        switch (format) {
        case NSReport::REPORT_FORMAT_PDF:
            return generatePDFReport();
        case NSReport::REPORT_FORMAT_XML:
            return generateXmlReport().toUtf8();
        case NSReport::REPORT_FORMAT_HTML:
            return generateHtmlReport().toUtf8();
        case NSReport::REPORT_FORMAT_TEXT:
            return generateTxtReport().toUtf8();
        default:
            return generateJsonReport().toUtf8();
        }
    }
};

QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writeForFloor(const QString& path, const QByteArray& contents)
{
    if (!uiutils::writeFileDurably(path, contents))
        giveUp("a file of the floor cannot be written");
}

/// The floor makes the same contents and writes the same files, the settings, records and list beside the reports among
/// them.
QVector<Result> savingCases(int runs)
{
    const QTemporaryDir root;
    const QByteArray rootBefore = qgetenv("UIUTILS_ROOT");
    qputenv("UIUTILS_ROOT", QFile::encodeName(root.path()));
    installIcons(root.path());
    const char* const names[] {"PDF", "XML", "HTML", "text", "JSON", "all formats"};
    QVector<Result> results;
    for (int format = 0; format <= NSReport::REPORT_FORMAT_ALL; ++format) {
        BenchReport report;
        report.choose(format);
        const bool isAll = format == NSReport::REPORT_FORMAT_ALL;
        const int first = isAll ? 0 : format;
        const int last = isAll ? NSReport::REPORT_FORMAT_JSON : format;
        const auto save = [&] {
            if (!report.save(true))
                giveUp("the report cannot be saved");
        };
        save();
        // No event loop brings them, and a save until then would ask the disk what not to touch.
        report.loadSettings();
        const QString recordName = QStringLiteral("report.%1.metadata").arg(QLatin1String(suffixes[first]));
        const QByteArray record
                = bytesOf(uiutils::onDisk(QStringLiteral("/cust/private/reports/metadata/bench/") + recordName));
        const QTemporaryDir floorFolder(root.filePath(QStringLiteral("floor-XXXXXX")));
        const Timing timing = interleaved(runs, save, [&] {
            for (int one = first; one <= last; ++one) {
                const QString name = floorFolder.filePath(QString::number(one));
                writeForFloor(name, report.contents(one));
                writeForFloor(name + QStringLiteral(".metadata"), record);
            }
        });
        const QString name = QStringLiteral("save() of %L1 rows, %2 / making and writing the same contents");
        results += Result {name.arg(savedRows).arg(QLatin1String(names[format])), QStringLiteral("ms CPU"), timing.ours,
                timing.floor, 1.3};
    }
    qputenv("UIUTILS_ROOT", rootBefore);
    KIVNotificationModelManager::instance()->clear();
    return results;
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
                if (uiutils::reportFiles(uiutils::savedReports(folder.path())).size() != files)
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
    QVector<Result> results = savingCases(runs);
    results += listingCase(runs);
    return results;
}

} // namespace bench
