#include "memory.h"
#include "writercase.h"

#include "base/paths_p.h"
#include "document/reporttemplate.h"
#include "writers/html/templatetohtmlwriter.h"

#include <QFile>
#include <QTemporaryDir>

#include <sys/inotify.h>
#include <unistd.h>

namespace bench {

namespace {

QString page(const ReportTemplate& report, QList<ReportItem*>* items)
{
    TemplateToHtmlWriter writer(report, items);
    return writer.getHtml();
}

/// Every run of the page has the same time stamp only while the clock shows the same second.
QString withoutTimestamp(const QString& html)
{
    const int begin = html.indexOf(QLatin1String("Timestamp"));
    const int end = html.indexOf(QLatin1String("</tr>"), begin);
    return QString(html).remove(begin, end - begin);
}

/// The page together with the items of its tables, which are made and deleted too.
QString pageWithItems(const ReportTemplate& report)
{
    QList<ReportItem*> items;
    const QString html = page(report, &items);
    qDeleteAll(items);
    return html;
}

/// What the report items take beside the page.
Result itemMemory(int rows)
{
    ReportTemplate report;
    buildReport(report, rows, 0);
    const double size = double(page(report, nullptr).size()) * sizeof(QChar) / 1e6;
    const qint64 plain = peakGrowth([&] { page(report, nullptr); });
    const qint64 withItems = peakGrowth([&] {
        QList<ReportItem*> items;
        page(report, &items);
    });
    return {QStringLiteral("   report items of %L1 rows / size of the page").arg(rows), QStringLiteral("MB"),
            double(withItems - plain) / 1e6, size, 0};
}

/// How often the fail icon is opened while a page of `rows` failed rows is written.
int iconReads(int rows)
{
    ReportTemplate report;
    buildReport(report, rows, 64);
    const int watch = inotify_init1(IN_NONBLOCK);
    const QByteArray icon = QFile::encodeName(uiutils::onDisk(uiutils::paths::failIcon));
    inotify_add_watch(watch, icon.constData(), IN_OPEN);
    page(report, nullptr);
    QByteArray events(64 * 1024, 0);
    const ssize_t bytes = ::read(watch, events.data(), size_t(events.size()));
    ::close(watch);
    return bytes <= 0 ? 0 : int(size_t(bytes) / sizeof(inotify_event));
}

} // namespace

QVector<Result> htmlCases(int runs)
{
    const QTemporaryDir root;
    qputenv("UIUTILS_ROOT", QFile::encodeName(root.path()));
    installIcons(root.path());
    QVector<Result> results;
    const Writer withItems {QStringLiteral("HTML page and report items"), pageWithItems, withoutTimestamp, 0.65};
    const Writer plain {QStringLiteral("HTML page"), [](const ReportTemplate& report) { return page(report, nullptr); },
            withoutTimestamp, 0.65};
    for (const int rows : {10'000, 100'000}) {
        results += writerCases(plain, runs, rows);
        results += writerCases(withItems, runs, rows).constFirst();
        results += itemMemory(rows);
    }
    results.append({QStringLiteral("reads of the icon file for 10,000 failed rows / one"), QStringLiteral("reads"),
            double(iconReads(10'000)), 1, 1});
    return results;
}

} // namespace bench
