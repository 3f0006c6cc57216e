#include "case.h"

#include <QCommandLineParser>
#include <QFile>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>

#include <embedded/embeddedbackend.h>

namespace {

void printTable(const QVector<bench::Result>& results)
{
    QTextStream out(stdout);
    out << "| case | ours | floor | unit | ratio | limit |\n|---|---:|---:|---|---:|---:|\n";
    for (const bench::Result& result : results) {
        const QString limit
                = result.limit > 0 ? QString::number(result.limit, 'f', 2) : QStringLiteral("-");
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

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Measures the library against floors in the same run."));
    parser.addHelpOption();
    const QCommandLineOption runsOption(
            QStringLiteral("runs"), QStringLiteral("Measured runs of each case, 7 or more."), QStringLiteral("N"),
            QStringLiteral("9"));
    const QCommandLineOption jsonOption(
            QStringLiteral("json"), QStringLiteral("Write the figures to FILE as well."), QStringLiteral("FILE"));
    const QCommandLineOption onlyOption(QStringLiteral("only"),
            QStringLiteral("Measure one room only: document or html."), QStringLiteral("ROOM"));
    parser.addOptions({runsOption, jsonOption, onlyOption});
    parser.process(app);
    const int runs = qMax(7, parser.value(runsOption).toInt());

    kiv::embedded::EmbeddedBackend backend;
    backend.loadFolders({QStringLiteral(UIUTILS_SERVICES_DIR)});
    const auto isWanted = [&](const QString& room) {
        return !parser.isSet(onlyOption) || parser.value(onlyOption) == room;
    };
    QVector<bench::Result> results;
    if (isWanted(QStringLiteral("document")))
        results += bench::documentCases(runs);
    if (isWanted(QStringLiteral("html")))
        results += bench::htmlCases(runs);
    printTable(results);
    if (parser.isSet(jsonOption) && !writeJson(parser.value(jsonOption), results)) {
        QTextStream(stderr) << "uiutils-bench: cannot write " << parser.value(jsonOption) << '\n';
        return 1;
    }
    return 0;
}
