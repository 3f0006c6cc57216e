#include "writercase.h"

#include "memory.h"
#include "tokens.h"

#include "base/paths_p.h"
#include "document/reporttemplate.h"

#include <QDir>
#include <QFile>

#include <cstdio>
#include <cstdlib>

namespace bench {

void buildReport(ReportTemplate& report, int rows, int status)
{
    const QVariantMap attributes {{QStringLiteral("status"), status}, {QStringLiteral("align"), 2}};
    report.beginReport(QStringLiteral("bench"));
    report.setKey(QStringLiteral("title"), QStringLiteral("Benchmark"));
    report.beginSection(QStringLiteral("section"), QStringLiteral("Section"));
    report.beginTable(QStringLiteral("table"), QStringLiteral("Table"));
    for (int i = 0; i < rows; ++i)
        report.addRow(QStringLiteral("tag"), QStringLiteral("Sample %1").arg(i), i * 0.25, attributes);
    report.endTable();
    report.endSection();
    report.endReport();
}

void installIcons(const QString& root)
{
    const QString folder = root + uiutils::paths::images;
    const QStringList icons = QDir(QStringLiteral(UIUTILS_IMAGES_DIR)).entryList({QStringLiteral("*.png")});
    bool isDone = QDir().mkpath(folder) && !icons.isEmpty();
    for (const QString& icon : icons)
        isDone = isDone && QFile::copy(QStringLiteral(UIUTILS_IMAGES_DIR "/") + icon, folder + icon);
    if (!isDone) {
        fputs("uiutils-bench: the icons cannot be put in place\n", stderr);
        std::exit(1);
    }
}

QVector<Result> writerCases(const Writer& writer, int runs, int rows)
{
    ReportTemplate report;
    buildReport(report, rows, 0);
    const QString text = writer.write(report);
    const QVector<Token> tokens = tokensOf(text);
    if (writer.lasting(emitTokens(tokens)) != writer.lasting(text)) {
        fprintf(stderr, "uiutils-bench: the floor does not write the %s that it stands for\n",
                qPrintable(writer.product));
        std::exit(1);
    }

    const Timing timing = interleaved(
            runs, [&] { writer.write(report); }, [&] { emitTokens(tokens); });
    const double size = double(text.size()) * sizeof(QChar) / 1e6;
    const double growth = double(peakGrowth([&] { writer.write(report); })) / 1e6;
    return {{QStringLiteral("%1 of %L2 rows / the same tokens, bare stream writer").arg(writer.product).arg(rows),
                    QStringLiteral("ms CPU"), timing.ours, timing.floor, writer.limit},
            {QStringLiteral("   peak memory of it / size of its text"), QStringLiteral("MB"), growth, size, 2.5}};
}

} // namespace bench
