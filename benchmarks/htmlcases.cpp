#include "case.h"
#include "memory.h"

#include "core/paths.h"
#include "document/reporttemplate.h"
#include "writers/templatetohtmlwriter.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <cstdlib>
#include <sys/inotify.h>
#include <unistd.h>

namespace bench {

namespace {

struct Token
{
    enum Kind { Dtd, Start, Empty, Characters, Comment, End } kind;
    QString text;
    QVector<QPair<QString, QString>> attributes;
};

QVector<QPair<QString, QString>> pairs(const QXmlStreamAttributes& attributes)
{
    QVector<QPair<QString, QString>> result;
    for (const QXmlStreamAttribute& attribute : attributes)
        result.append({attribute.name().toString(), attribute.value().toString()});
    return result;
}

/// The tokens of a page, its texts and names ready made.
QVector<Token> tokensOf(const QString& html)
{
    QVector<Token> tokens;
    QXmlStreamReader reader(html);
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::DTD:
            tokens.append({Token::Dtd, reader.text().trimmed().toString(), {}});
            break;
        case QXmlStreamReader::StartElement: {
            const bool isEmpty = reader.name() == QLatin1String("img") || reader.name() == QLatin1String("meta");
            tokens.append({isEmpty ? Token::Empty : Token::Start, reader.name().toString(), pairs(reader.attributes())});
            if (isEmpty)
                reader.readNext();
            break;
        }
        case QXmlStreamReader::Characters:
            if (!reader.isWhitespace())
                tokens.append({Token::Characters, reader.text().toString(), {}});
            break;
        case QXmlStreamReader::Comment:
            tokens.append({Token::Comment, reader.text().toString(), {}});
            break;
        case QXmlStreamReader::EndElement:
            if (tokens.constLast().kind == Token::Start)
                tokens.append({Token::Characters, QString(), {}});
            tokens.append({Token::End, QString(), {}});
            break;
        default:
            break;
        }
    }
    return tokens;
}

void writeAttributes(QXmlStreamWriter& writer, const Token& token)
{
    for (const auto& attribute : token.attributes)
        writer.writeAttribute(attribute.first, attribute.second);
}

QString emitTokens(const QVector<Token>& tokens)
{
    QString text;
    QXmlStreamWriter writer(&text);
    writer.setAutoFormatting(true);
    writer.writeStartDocument();
    for (const Token& token : tokens) {
        switch (token.kind) {
        case Token::Dtd:
            writer.writeDTD(token.text);
            break;
        case Token::Start:
            writer.writeStartElement(token.text);
            writeAttributes(writer, token);
            break;
        case Token::Empty:
            writer.writeEmptyElement(token.text);
            writeAttributes(writer, token);
            break;
        case Token::Characters:
            writer.writeCharacters(token.text);
            break;
        case Token::Comment:
            writer.writeComment(token.text);
            break;
        case Token::End:
            writer.writeEndElement();
            break;
        }
    }
    writer.writeEndDocument();
    return text;
}

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

QString page(const ReportTemplate& report, QList<ReportItem*>* items)
{
    TemplateToHtmlWriter writer(report, items);
    return writer.getHtml();
}

/// A page and the items of its tables, which are made and deleted too.
void writePage(const ReportTemplate& report)
{
    QList<ReportItem*> items;
    page(report, &items);
    qDeleteAll(items);
}

/// Every run of the page has the same time stamp only while the clock shows the same second.
QString withoutTimestamp(const QString& html)
{
    const int begin = html.indexOf(QLatin1String("Timestamp"));
    const int end = html.indexOf(QLatin1String("</tr>"), begin);
    return QString(html).remove(begin, end - begin);
}

void timePages(QVector<Result>& results, int runs, int rows)
{
    ReportTemplate report;
    buildReport(report, rows, 0);
    const QString html = page(report, nullptr);
    const QVector<Token> tokens = tokensOf(html);
    if (withoutTimestamp(emitTokens(tokens)) != withoutTimestamp(html)) {
        fputs("uiutils-bench: the floor does not write the page that it stands for\n", stderr);
        std::exit(1);
    }

    const Timing timing = interleaved(runs, [&] { writePage(report); }, [&] { emitTokens(tokens); });
    results.append({QStringLiteral("HTML page of %L1 rows / the same tokens, bare stream writer").arg(rows),
            QStringLiteral("ms CPU"), timing.ours, timing.floor, 1.3});

    const double size = double(html.size()) * sizeof(QChar) / 1e6;
    const double growth = double(peakGrowth([&] { page(report, nullptr); })) / 1e6;
    results.append({QStringLiteral("peak memory of the page of %L1 rows / size of its text").arg(rows),
            QStringLiteral("MB"), growth, size, 2.5});
    const double withItems = double(peakGrowth([&] {
        QList<ReportItem*> items;
        page(report, &items);
    })) / 1e6;
    results.append({QStringLiteral("   of it for the report items of %L1 rows, beside the text").arg(rows),
            QStringLiteral("MB"), withItems - growth, size, 0});
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

bool installIcons(const QString& root)
{
    const QString folder = root + uiutils::paths::images;
    if (!QDir().mkpath(folder))
        return false;
    const QStringList icons = QDir(QStringLiteral(UIUTILS_IMAGES_DIR)).entryList({QStringLiteral("*.png")});
    for (const QString& icon : icons) {
        if (!QFile::copy(QStringLiteral(UIUTILS_IMAGES_DIR "/") + icon, folder + icon))
            return false;
    }
    return !icons.isEmpty();
}

} // namespace

QVector<Result> htmlCases(int runs)
{
    const QTemporaryDir root;
    qputenv("UIUTILS_ROOT", QFile::encodeName(root.path()));
    if (!installIcons(root.path())) {
        fputs("uiutils-bench: the icons cannot be put in place\n", stderr);
        std::exit(1);
    }
    QVector<Result> results;
    timePages(results, runs, 10'000);
    timePages(results, runs, 100'000);
    results.append({QStringLiteral("reads of the icon file for 10,000 failed rows / one"), QStringLiteral("reads"),
            double(iconReads(10'000)), 1, 1});
    return results;
}

} // namespace bench
