#include "case.h"

#include <QCommandLineParser>
#include <QFile>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLoggingCategory>
#include <QTextStream>

#include <embedded/embeddedbackend.h>

namespace {

struct Room
{
    const char* name;
    QVector<bench::Result> (*measure)(int runs);
};

/// In the order in which they are measured: behind the bindings, documents and texts take a third longer.
const Room rooms[] {{"document", bench::documentCases}, {"html", bench::htmlCases}, {"pdf", bench::pdfCases},
        {"plot", bench::plotCases}, {"xml", bench::xmlCases}, {"text", bench::textCases},
        {"binding", bench::bindingCases}, {"local", bench::localCases}, {"pdffile", bench::pdfFileCases},
        {"report", bench::reportCases}};

QStringList roomNames()
{
    QStringList names;
    for (const Room& room : rooms)
        names += QString::fromLatin1(room.name);
    return names;
}

void printTable(const QVector<bench::Result>& results)
{
    QTextStream out(stdout);
    out << "| case | ours | floor | unit | ratio | limit |\n|---|---:|---:|---|---:|---:|\n";
    for (const bench::Result& result : results) {
        const QString limit = result.limit > 0 ? QString::number(result.limit, 'f', 2) : QStringLiteral("-");
        out << "| " << result.name << " | " << QString::number(result.ours, 'f', 2) << " | "
            << QString::number(result.floor, 'f', 2) << " | " << result.unit << " | "
            << QString::number(result.ratio(), 'f', 2) << " | " << limit << " |\n";
    }
}

bool writeJson(const QString& path, const QVector<bench::Result>& results)
{
    QJsonArray cases;
    for (const bench::Result& result : results) {
        cases += QJsonObject {{QStringLiteral("case"), result.name.trimmed()}, {QStringLiteral("unit"), result.unit},
                {QStringLiteral("ours"), result.ours}, {QStringLiteral("floor"), result.floor},
                {QStringLiteral("ratio"), result.ratio()}, {QStringLiteral("limit"), result.limit}};
    }
    const QByteArray text = QJsonDocument(QJsonObject {{QStringLiteral("cases"), cases}}).toJson();
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.flush();
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication app(argc, argv);
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Measures the library against floors in the same run."));
    parser.addHelpOption();
    const QCommandLineOption runsOption(QStringLiteral("runs"),
            QStringLiteral("Measured runs of each case, 7 or more."), QStringLiteral("N"), QStringLiteral("9"));
    const QCommandLineOption jsonOption(
            QStringLiteral("json"), QStringLiteral("Write the figures to FILE as well."), QStringLiteral("FILE"));
    const QCommandLineOption onlyOption(QStringLiteral("only"),
            QStringLiteral("Measure this room only: document, html, pdf, plot, xml, text, binding, local, pdffile or "
                           "report."),
            QStringLiteral("ROOM"));
    parser.addOptions({runsOption, jsonOption, onlyOption});
    parser.process(app);
    const int runs = qMax(7, parser.value(runsOption).toInt());

    kiv::embedded::EmbeddedBackend backend;
    backend.loadFolders({QStringLiteral(UIUTILS_SERVICES_DIR)});
    const QStringList wanted = parser.isSet(onlyOption) ? parser.values(onlyOption) : roomNames();
    QVector<bench::Result> results;
    for (const QString& room : wanted) {
        const int index = roomNames().indexOf(room);
        if (index < 0) {
            QTextStream(stderr) << "uiutils-bench: no room " << room << ", there are "
                                << roomNames().join(QLatin1String(", ")) << '\n';
            return 2;
        }
        results += rooms[index].measure(runs);
    }
    printTable(results);
    if (parser.isSet(jsonOption) && !writeJson(parser.value(jsonOption), results)) {
        QTextStream(stderr) << "uiutils-bench: cannot write " << parser.value(jsonOption) << '\n';
        return 1;
    }
    return 0;
}
