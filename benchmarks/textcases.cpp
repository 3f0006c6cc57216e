#include "memory.h"
#include "writercase.h"

#include "document/documentreader_p.h"
#include "document/reporttemplate.h"
#include "writers/csv/csvreport.h"
#include "writers/text/textreport.h"

#include <cstdio>
#include <cstdlib>

namespace bench {

namespace {

/// A piece of a line and the columns it takes with the blanks behind it.
struct Piece
{
    QString text;
    int width;
};

QVector<Piece> piecesOf(const QString& text)
{
    QVector<Piece> pieces;
    int begin = 0;
    while (begin < text.size()) {
        int end = begin;
        while (end < text.size() && text.at(end) != QLatin1Char('\n') && text.midRef(end, 2) != QLatin1String("  "))
            ++end;
        int next = end;
        while (next < text.size() && text.at(next) == QLatin1Char(' '))
            ++next;
        if (end < text.size() && text.at(end) == QLatin1Char('\n'))
            next = ++end;
        pieces.append({text.mid(begin, end - begin), next - begin});
        begin = next;
    }
    return pieces;
}

QString padded(const QVector<Piece>& pieces, int size)
{
    QString text;
    text.reserve(size);
    for (const Piece& piece : pieces)
        text += piece.text.leftJustified(piece.width);
    return text;
}

/// What any layout has to take out of the document, by the reader that all share; returns something of it.
int leavesOf(const QJsonObject& node)
{
    using namespace uiutils;
    int size = 0;
    NodeReader(node).forEachTable(NodeReader::ByNumber, [&](const QString&, const QJsonObject& object) {
        const TableReader table(object);
        table.forEachRow(NodeReader::ByNumber, [&](const QString&, const QJsonObject& row) {
            size += textOf(row.value(keys::label)).size();
            table.forEachCellOf(row, [&](int, const QJsonObject& cell) {
                size += textOf(cell.value(keys::label)).size() + textOf(cell.value(keys::statusAttribute)).size()
                        + textOf(cell.value(keys::alignAttribute)).size();
            });
        });
    });
    NodeReader(node).forEachSection(
            NodeReader::ByNumber, [&](const QJsonObject& section) { size += leavesOf(section); });
    return size;
}

QVector<Result> textCase(int runs, int rows)
{
    ReportTemplate report;
    buildReport(report, rows, 0);
    const QString text = uiutils::reportText(report);
    const QVector<Piece> pieces = piecesOf(text);
    if (padded(pieces, text.size()) != text) {
        fputs("uiutils-bench: the floor does not write the plain text that it stands for\n", stderr);
        std::exit(1);
    }
    const Timing timing = interleaved(
            runs, [&] { uiutils::reportText(report); }, [&] { padded(pieces, text.size()); });
    int leaves = 0;
    const Timing withReading = interleaved(
            runs, [&] { uiutils::reportText(report); },
            [&] {
                leaves += leavesOf(report.object());
                padded(pieces, text.size());
            });
    if (leaves == 0)
        std::exit(1);
    const QByteArray csv = uiutils::reportCsv(report);
    const Timing asCsv = interleaved(
            runs, [&] { uiutils::reportCsv(report); }, [&] { leaves += leavesOf(report.object()); });
    const double size = double(text.size()) * sizeof(QChar) / 1e6;
    const double growth = double(peakGrowth([&] { uiutils::reportText(report); })) / 1e6;
    const double csvGrowth = double(peakGrowth([&] { uiutils::reportCsv(report); })) / 1e6;
    return {{QStringLiteral("plain text of %L1 rows / the same pieces, padded").arg(rows), QStringLiteral("ms CPU"),
                    timing.ours, timing.floor, 0},
            {QStringLiteral("plain text of %L1 rows / reading the leaves, and the same pieces, padded").arg(rows),
                    QStringLiteral("ms CPU"), withReading.ours, withReading.floor, 3},
            {QStringLiteral("   peak memory of it / size of its text"), QStringLiteral("MB"), growth, size, 0},
            {QStringLiteral("CSV of %L1 rows / reading the leaves").arg(rows), QStringLiteral("ms CPU"), asCsv.ours,
                    asCsv.floor, 2},
            {QStringLiteral("   peak memory of it / its size"), QStringLiteral("MB"), csvGrowth,
                    double(csv.size()) / 1e6, 0}};
}

} // namespace

QVector<Result> textCases(int runs)
{
    const QVector<Result> small = textCase(runs, 10'000);
    const QVector<Result> large = textCase(runs, 100'000);
    return small + large
            + QVector<Result> {{QStringLiteral("plain text of 100,000 rows / of 10,000 rows"), QStringLiteral("ms CPU"),
                    large.constFirst().ours, small.constFirst().ours, 12}};
}

} // namespace bench
