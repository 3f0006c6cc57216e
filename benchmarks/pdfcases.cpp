#include "memory.h"
#include "writercase.h"

#include "document/reporttemplate.h"
#include "writers/html/templatetohtmlwriter.h"
#include "writers/html/templatetopdfwriter.h"
#include "writers/pages/pageprinter_p.h"
#include "writers/pages/reportpainter.h"
#include "writers/pages/reporttable.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>
#include <QPainter>
#include <QPrinter>
#include <QProcess>
#include <QTemporaryDir>
#include <QTextDocument>

#include <cstdlib>
#include <memory>

namespace bench {

namespace {

constexpr int tables = 10;

/// Ten tables of three columns, `rows` rows together.
void buildTables(ReportTemplate& report, int rows, int status)
{
    report.beginReport(QStringLiteral("bench"));
    report.setKey(QStringLiteral("title"), QStringLiteral("Benchmark"));
    for (int table = 0; table < tables; ++table) {
        report.beginSection(QStringLiteral("section"), QStringLiteral("Section %1").arg(table));
        report.beginTable(QStringLiteral("table"), QStringLiteral("Measurements %1").arg(table));
        report.setKey(QStringLiteral("num_columns"), 2);
        for (int row = 0; row < rows / tables; ++row) {
            const int number = table * (rows / tables) + row;
            report.addRow(QStringLiteral("tag"), QStringLiteral("Measurement point %1").arg(number),
                    QStringLiteral("%1 dBm").arg(-20 - number * 0.013, 0, 'f', 3),
                    {{QStringLiteral("status"), status}});
        }
        report.endTable();
        report.endSection();
    }
    report.endReport();
}

/// Items as the HTML pass makes them.
class Items
{
public:
    explicit Items(int rows, int columns = 3, int status = 0)
    {
        const QStringList labels
                = QStringList {QStringLiteral("Point"), QStringLiteral("Level"), QStringLiteral("Channel")}
                + QVector<QString>(columns - 3, QStringLiteral("Loss")).toList();
        for (int table = 0; table < tables; ++table) {
            auto* item = new ReportTable(QStringLiteral("Measurements %1").arg(table), labels, false);
            for (int row = 0; row < rows / tables; ++row)
                addRow(*item, table * (rows / tables) + row, columns, status);
            m_items += item;
        }
    }
    ~Items() { qDeleteAll(m_items); }
    Q_DISABLE_COPY_MOVE(Items)

    const QList<ReportItem*>& list() const { return m_items; }

private:
    static void addRow(ReportTable& item, int number, int columns, int status)
    {
        item.appendCell({QStringLiteral("Measurement point %1").arg(number)});
        item.appendCell({QStringLiteral("%1 dBm").arg(-20 - number * 0.013, 0, 'f', 3), status, 2});
        item.appendCell({QStringLiteral("Channel %1").arg(number % 97)});
        for (int column = 3; column < columns; ++column)
            item.appendCell({QStringLiteral("%1 dB").arg((number * 7 + column) % 1000 / 100.0, 0, 'f', 2)});
        item.endRow();
    }

    QList<ReportItem*> m_items;
};

void printItems(const Items& items, const QString& path, bool isTagged)
{
    uiutils::PageSettings settings;
    settings.surroundings.frame.documentTitle = QStringLiteral("Benchmark");
    settings.document.information.created = QDateTime::currentDateTime();
    settings.document.isTagged = isTagged;
    uiutils::PagePrinter printer(settings, items.list(), [](int, int) { return true; });
    QFile file(path);
    QString error;
    if (!file.open(QIODevice::WriteOnly) || printer.print(&file, &error) != uiutils::PagePrinter::Printed) {
        fprintf(stderr, "uiutils-bench: cannot print to %s: %s\n", qPrintable(path), qPrintable(error));
        std::exit(1);
    }
}

/// Each cell measured and drawn by itself, in columns of the same width, on pages of the same printer.
void printPlainly(const Items& items, const QString& path)
{
    QPrinter printer(QPrinter::ScreenResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setPageSize(QPageSize(QPageSize::Letter));
    printer.setFullPage(true);
    printer.setOutputFileName(path);
    QPainter painter(&printer);
    const QFont font(QStringLiteral("sans-serif"), 9);
    painter.setFont(font);
    const QFontMetrics metrics(font, &printer);
    const QRect page = printer.paperRect(QPrinter::DevicePixel).toRect().adjusted(60, 60, -60, -60);
    int top = page.top();
    for (const ReportItem* item : items.list()) {
        const auto* table = static_cast<const ReportTable*>(item);
        const int columns = table->columnCount();
        const int width = page.width() / columns;
        for (int row = 0; row < table->rowCount(); ++row) {
            int height = 0;
            for (int column = 0; column < columns; ++column) {
                height = qMax(height,
                        metrics.boundingRect(QRect(0, 0, width, page.height()), Qt::TextWordWrap,
                                       table->cellAt(row, column)->text)
                                .height());
            }
            if (top + height > page.bottom()) {
                printer.newPage();
                top = page.top();
            }
            for (int column = 0; column < columns; ++column) {
                painter.drawText(QRect(page.left() + column * width, top, width, height), Qt::TextWordWrap,
                        table->cellAt(row, column)->text);
            }
            top += height;
        }
    }
}

/// How many images the file holds.
int imagesIn(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll().count("/Subtype/Image") : -1;
}

/// What pages of one shape are held to.
struct Limits
{
    double floor;
    double growth;
    double bytes;
};
constexpr Limits untagged {0.10, 1.5, 35};
constexpr Limits tagged {0.30, 12, 110};

QVector<Result> printCases(int runs, int rows, int columns, bool isTagged, const QString& path)
{
    const Limits& limits = isTagged ? tagged : untagged;
    const Items items(rows, columns);
    const Timing timing = interleaved(
            runs, [&] { printItems(items, path, isTagged); },
            [&] { printPlainly(items, path + QStringLiteral(".floor")); });
    QVector<Result> results {
            {QStringLiteral("%1 pages of %L2 rows, %3 columns / boundingRect and drawText of their cells")
                            .arg(isTagged ? QStringLiteral("tagged") : QStringLiteral("untagged"))
                            .arg(rows)
                            .arg(columns),
                    QStringLiteral("ms CPU"), timing.ours, timing.floor, limits.floor}};
    if (columns > 3)
        return results;
    printItems(items, path, isTagged);
    const double size = double(QFile(path).size());
    // A file of a few rows first: a forked process maps the toolkit's code anew, which is not the pages' doing.
    const Items few(tables);
    const double growth
            = double(peakGrowth([&] { printItems(few, path, isTagged); }, [&] { printItems(items, path, isTagged); }))
            / 1e6;
    results.append({QStringLiteral("   peak memory growth of it / its limit"), QStringLiteral("MB"), growth,
            limits.growth, rows >= 100'000 ? 1.0 : 0.0});
    results.append({QStringLiteral("   size of the file / its limit"), QStringLiteral("bytes per row"), size / rows,
            limits.bytes, 1});
    return results;
}

/// As a screen shows it.
void previewFirstPage(const Items& items)
{
    ReportPDF report;
    report.setItems(items.list());
    uiutils::ReportPainter pages(report);
    while (pages.layOutMore()) { }
    constexpr qreal pixelsOfAPoint = 1.5;
    QImage page((pages.pageSize(0) * pixelsOfAPoint).toSize(), QImage::Format_RGB32);
    page.fill(Qt::white);
    QPainter painter(&page);
    painter.scale(pixelsOfAPoint, pixelsOfAPoint);
    pages.paint(painter, 0);
}

Result previewCase(int runs, int rows, double limit)
{
    const Items items(rows);
    ReportPDF report;
    report.setItems(items.list());
    const Timing timing = interleaved(
            runs, [&] { previewFirstPage(items); }, [&] { report.toPdf(); });
    return {QStringLiteral("first page of a preview of %L1 rows / printing them").arg(rows), QStringLiteral("ms CPU"),
            timing.ours, timing.floor, limit};
}

void writeDocument(const ReportTemplate& report, const QString& path)
{
    QList<ReportItem*> items;
    TemplateToPdfWriter writer(report, &items);
    QString error;
    if (!writer.write(path, &error)) {
        fprintf(stderr, "uiutils-bench: %s\n", qPrintable(error));
        std::exit(1);
    }
    qDeleteAll(items);
}

/// Parts of the road from a document to the finished file, held against all of it.
QVector<Result> documentCases(int runs, int rows, const QString& path)
{
    ReportTemplate report;
    buildTables(report, rows, 0);
    const auto pass = [&] {
        QList<ReportItem*> items;
        TemplateToHtmlWriter writer(report, &items);
        writer.setAttribute(QStringLiteral("isForPDF"), true);
        writer.collectItems();
        qDeleteAll(items);
    };
    const auto whole = [&] { writeDocument(report, path); };
    const Timing passTime = interleaved(runs, pass, whole);

    return {{QStringLiteral("   HTML pass for items of %L1 rows / document to finished file").arg(rows),
            QStringLiteral("ms CPU"), passTime.ours, passTime.floor, 0}};
}

/// The same rows by way of HTML and the toolkit's own rich text.
Result richTextCase(int runs, int rows, const QString& path)
{
    ReportTemplate report;
    buildTables(report, rows, 0);
    const QString html = TemplateToHtmlWriter(report, nullptr).getHtml();
    const Timing timing = interleaved(
            runs, [&] { writeDocument(report, path); },
            [&] {
                QTextDocument document;
                document.setHtml(html);
                QPrinter printer(QPrinter::ScreenResolution);
                printer.setOutputFormat(QPrinter::PdfFormat);
                printer.setPageSize(QPageSize(QPageSize::Letter));
                printer.setOutputFileName(path + QStringLiteral(".peer"));
                document.print(&printer);
            });
    return {QStringLiteral("document of %L1 rows to finished file / QTextDocument::print of its HTML").arg(rows),
            QStringLiteral("ms CPU"), timing.ours, timing.floor, 0};
}

/// The memory that a process says it took which has done nothing else, and shares none with this one.
double memoryOfProcess(const char* argument)
{
    QProcess fresh;
    fresh.start(QCoreApplication::applicationFilePath(), {QLatin1String(argument)});
    fresh.waitForFinished(-1);
    return fresh.readAllStandardOutput().trimmed().toDouble();
}

constexpr int few = 10'000;
constexpr int many = 100'000;
constexpr int most = 1'000'000;

/// One run each: what is of interest is whether the memory stays.
QVector<Result> longestCases(const QString& path)
{
    QVector<Result> results;
    const Items handful(tables);
    for (const bool isTagged : {false, true}) {
        // Made in the child: the heap of this process would be another one for the cases that follow.
        std::unique_ptr<Items> items;
        const auto prepare = [&] {
            items = std::make_unique<Items>(most);
            printItems(handful, path, isTagged);
        };
        const double growth = double(peakGrowth(prepare, [&] { printItems(*items, path, isTagged); })) / 1e6;
        results.append({QStringLiteral("memory growth of %1 pages of %L2 rows / size of the file")
                                .arg(isTagged ? QStringLiteral("tagged") : QStringLiteral("untagged"))
                                .arg(most),
                QStringLiteral("MB"), growth, double(QFile(path).size()) / 1e6, 0});
    }
    return results;
}

} // namespace

int printFirstFile()
{
    const QTemporaryDir folder;
    const Items handful(tables);
    printf("%lld\n", growthHere([&] { printItems(handful, folder.filePath(QStringLiteral("first.pdf")), true); }));
    return 0;
}

int writeWholeDocument()
{
    const QTemporaryDir folder;
    ReportTemplate report;
    buildTables(report, many, 0);
    writeDocument(report, folder.filePath(QStringLiteral("whole.pdf")));
    printf("%lld\n", peakHere());
    return 0;
}

QVector<Result> pdfCases(int runs)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("bench.pdf"));
    qputenv("UIUTILS_ROOT", QFile::encodeName(folder.path()));
    installIcons(folder.path());

    QVector<Result> results;
    for (const bool isTagged : {false, true}) {
        const QVector<Result> ofFew = printCases(runs, few, 3, isTagged, path);
        const QVector<Result> ofMany = printCases(runs, many, 3, isTagged, path);
        results += ofFew + ofMany + printCases(runs, few, 9, isTagged, path);
        results.append({QStringLiteral("   pages of 100,000 rows / pages of 10,000 rows"), QStringLiteral("ms CPU"),
                ofMany.at(0).ours, ofFew.at(0).ours, 10.5});
    }
    printItems(Items(few, 3, 64), path, false);
    const int imagesOfMany = imagesIn(path);
    printItems(Items(tables, 3, 64), path, false);
    results.append({QStringLiteral("images in a file of 10,000 failed rows / of 10"), QStringLiteral("images"),
            double(imagesOfMany), double(imagesIn(path)), 1});
    results.append({QStringLiteral("memory of a process's first file, 10 rows / 8 MB"), QStringLiteral("MB"),
            memoryOfProcess(firstFileArgument) / 1e6, 8, 1});
    results.append({QStringLiteral("memory of a process that builds and prints 100,000 rows / 120 MB"),
            QStringLiteral("MB"), memoryOfProcess(wholeDocumentArgument) / 1e6, 120, 1});
    results += longestCases(path);
    results += {previewCase(runs, few, 0.15), previewCase(runs, many, 0)};
    results += documentCases(runs, few, path);
    results += documentCases(runs, many, path);
    results.append(richTextCase(runs, few, path));
    return results;
}

} // namespace bench
