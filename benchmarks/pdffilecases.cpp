#include "case.h"

#include "base/durablefile_p.h"
#include "writers/pdffile/pdffile.h"
#include "writers/pdffile/podofo/pdfdocument_p.h"

#include <QElapsedTimer>
#include <QFile>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>

namespace bench {

namespace {

constexpr int ordinaryPages = 10;
constexpr int manyPages = 1'000;
constexpr int manyEntries = 10'000;

void print(const QString& path, int pages)
{
    QPdfWriter writer(path);
    QPainter painter(&writer);
    for (int page = 0; page < pages; ++page) {
        if (page > 0)
            writer.newPage();
        for (int line = 0; line < 40; ++line) {
            painter.drawText(200, 200 + 250 * line, QStringLiteral("Event %1.%2: loss 0.25 dB").arg(page).arg(line));
        }
    }
}

QByteArray contentsOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// By the clock, since what a helper process does is no time of this one.
std::function<double()> timed(const std::function<void()>& run)
{
    return [run] {
        QElapsedTimer timer;
        timer.start();
        run();
        return double(timer.nsecsElapsed()) / 1e6;
    };
}

QVector<Result> ordinaryCases(int runs, const QString& path)
{
    print(path, ordinaryPages);
    const QByteArray contents = contentsOf(path);
    PDFFile file;
    QString error;
    const Timing load = interleavedParts(runs, timed([&] { file.setFilename(path); }),
            timed([&] { uiutils::podofo::load(contentsOf(path), &error); }));
    file.setTitle(QStringLiteral("Fiber 7"));
    const Timing write = interleavedParts(runs, timed([&] { file.write(QString()); }),
            timed([&] { (void)uiutils::writeFileDurably(path, contents); }));
    return {{QStringLiteral("PDF file of %1 pages tried out and loaded / loaded").arg(ordinaryPages),
                    QStringLiteral("ms"), load.ours, load.floor, 0},
            {QStringLiteral("PDF file of %1 pages written / its bytes written as durably").arg(ordinaryPages),
                    QStringLiteral("ms"), write.ours, write.floor, 0}};
}

} // namespace

QVector<Result> pdfFileCases(int runs)
{
    const QTemporaryDir folder;
    return ordinaryCases(runs, folder.filePath(QStringLiteral("ordinary.pdf")));
}

} // namespace bench
