#include "rooms.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>
#include <QTextStream>

#include <cstdlib>

namespace bench {

namespace {

QStringList namesOf(const QVector<Room>& rooms)
{
    QStringList names;
    for (const Room& room : rooms)
        names += QString::fromLatin1(room.name);
    return names;
}

/// The rooms of those names, in the order of the names.
QVector<Room> chosen(const QVector<Room>& rooms, const QStringList& names)
{
    const QStringList known = namesOf(rooms);
    QVector<Room> result;
    for (const QString& name : names) {
        const int index = known.indexOf(name);
        if (index < 0) {
            QTextStream(stderr) << QCoreApplication::applicationName() << ": no room " << name << ", there are "
                                << known.join(QLatin1String(", ")) << '\n';
            std::exit(2);
        }
        result += rooms.at(index);
    }
    return result;
}

void printTable(const QVector<Result>& results)
{
    QTextStream out(stdout);
    out << "| case | ours | floor | unit | ratio | limit |\n|---|---:|---:|---|---:|---:|\n";
    for (const Result& result : results) {
        const QString limit = result.limit > 0 ? QString::number(result.limit, 'f', 2) : QStringLiteral("-");
        out << "| " << result.name << " | " << QString::number(result.ours, 'f', 2) << " | "
            << QString::number(result.floor, 'f', 2) << " | " << result.unit << " | "
            << QString::number(result.ratio(), 'f', 2) << " | " << limit << " |\n";
    }
}

bool writeJson(const QString& path, const QVector<Result>& results)
{
    QJsonArray cases;
    for (const Result& result : results) {
        cases += QJsonObject {{QStringLiteral("case"), result.name.trimmed()}, {QStringLiteral("unit"), result.unit},
                {QStringLiteral("ours"), result.ours}, {QStringLiteral("floor"), result.floor},
                {QStringLiteral("ratio"), result.ratio()}, {QStringLiteral("limit"), result.limit}};
    }
    const QByteArray text = QJsonDocument(QJsonObject {{QStringLiteral("cases"), cases}}).toJson();
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.flush();
}

} // namespace

Options readOptions(const QString& description, const QVector<Room>& rooms)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(description);
    parser.addHelpOption();
    const QCommandLineOption runsOption(QStringLiteral("runs"),
            QStringLiteral("Measured runs of each case, 7 or more."), QStringLiteral("N"), QStringLiteral("9"));
    const QCommandLineOption jsonOption(
            QStringLiteral("json"), QStringLiteral("Write the figures to FILE as well."), QStringLiteral("FILE"));
    const QCommandLineOption onlyOption(QStringLiteral("only"),
            QStringLiteral("Measure this room only: %1.").arg(namesOf(rooms).join(QLatin1String(", "))),
            QStringLiteral("ROOM"));
    parser.addOptions({runsOption, jsonOption, onlyOption});
    parser.process(*QCoreApplication::instance());
    return {qMax(7, parser.value(runsOption).toInt()), parser.value(jsonOption),
            parser.isSet(onlyOption) ? chosen(rooms, parser.values(onlyOption)) : rooms};
}

int measureRooms(const Options& options)
{
    QVector<Result> results;
    for (const Room& room : options.rooms)
        results += room.measure(options.runs);
    printTable(results);
    if (options.json.isEmpty() || writeJson(options.json, results))
        return 0;
    QTextStream(stderr) << QCoreApplication::applicationName() << ": cannot write " << options.json << '\n';
    return 1;
}

} // namespace bench
