#include "columns.h"
#include "servicetexts.h"
#include "simulatedservice.h"
#include "simulation/csvcolumn_p.h"
#include "simulation/recordedvalues_p.h"
#include "simulation/simulation_p.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QRandomGenerator>

#include <cmath>

#include <sys/stat.h>

using namespace kiv::simulation;
using kiv::embedded::EmbeddedBackend;

namespace {

/// A JSON value of which one part, anywhere in it, is another, mostly of the same type.
QJsonValue changedSomewhere(const QJsonValue& value, QRandomGenerator& random)
{
    static const QJsonArray numbers {-1, 0, 0.5, 10, 250, 1e300, -1e300, 86'400'000};
    static const QJsonArray texts {"", "%1", "x", ":result:s:loss:", ":result:s:level:", ":action:s:start:", "steps", "back"};
    static const QJsonArray others {true, false, QJsonValue(), QJsonArray {1, QJsonValue()}, QJsonObject(), QJsonObject {{"from", 5}, {"to", 5}},
            QJsonObject {{"to", -1e300}}};
    const bool isDeeper = random.bounded(20) > 0;
    if (value.isArray() && !value.toArray().isEmpty() && isDeeper) {
        QJsonArray array = value.toArray();
        const int index = random.bounded(array.size());
        array[index] = changedSomewhere(array.at(index), random);
        return array;
    }
    if (value.isObject() && !value.toObject().isEmpty() && isDeeper) {
        QJsonObject object = value.toObject();
        const QString key = object.keys().at(random.bounded(object.size()));
        object[key] = changedSomewhere(object.value(key), random);
        return object;
    }
    const QJsonArray& pool = random.bounded(10) == 0 ? others : value.isDouble() ? numbers : value.isString() ? texts : others;
    return pool.at(random.bounded(pool.size()));
}

} // namespace

class SimulationFilesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rejectedFiles_data()
    {
        addColumns<QByteArray, QString>();
        for (const QStringList& row : tableIn("/rejected/simulation.txt"))
            QTest::newRow(qPrintable(row.at(0))) << row.at(2).toUtf8() << row.at(1);
    }
    void rejectedFiles()
    {
        const auto [contents, place] = currentRow<QByteArray, QString>();
        QTemporaryDir folder;
        const QString path = writeFile(folder.filePath("bad.service.json"), contents);
        EmbeddedBackend backend;
        simulate(backend, Simulated::All);
        QString problem;
        QVERIFY(!backend.loadFile(path, &problem));
        QVERIFY2(problem.startsWith(path + place), qPrintable(problem));
        QVERIFY(problem.size() > path.size() + place.size());
        QCOMPARE(backend.serviceNames(), QStringList());
    }

    /// What a file may say is survived, however odd it is: half an hour passes, clients ask for everything, numbers stay numbers.
    void oddFiles()
    {
        QByteArray json = meter(failing);
        json.replace(R"({"service": "s",)", R"({"service": "s", "happens": [{"after": 2000, "for": 3000, "every": 20000, "vanish": true, "slow": 0},
            {"after": 9000, "every": 1000, "error": "x", "set": {":result:s:events:": 7}, "quality": "failing", "ready": false, "items": [":"]}],)");
        json.replace(R"({"id": ":action:s:stop:")", item("list", R"({"as": "steps", "values": [1, 2, 3], "noise": 3, "then": "back"})") + ','
                        + item("sine", R"({"as": "sine", "from": -2, "to": 2, "period": 1000, "every": 100})") + R"(, {"id": ":action:s:stop:")");
        const QJsonObject file = QJsonDocument::fromJson(json).object();
        QVERIFY(!file.isEmpty());
        QVERIFY2(SimulatedService(json, false, true).client, qPrintable(SimulatedService(json, false, true).problem));
        int accepted = 0;
        for (quint32 seed = 0; seed < 300; ++seed) {
            QRandomGenerator random(seed);
            const QJsonObject odd = changedSomewhere(file, random).toObject();
            SimulatedService s(QJsonDocument(odd).toJson(), false, true);
            if (!s.client || !s.driver)
                continue;
            ++accepted;
            for (const int time : {0, 2500, 6000, 100'000, 2'000'000}) {
                s.to(time);
                for (const QString& id : s.client->getItemIds()) {
                    const QVariant value = s.value(id);
                    QVERIFY2(value.userType() != QMetaType::Double || std::isfinite(value.toDouble()), qPrintable(id));
                    s.client->setItem(id, 1);
                    s.client->sendAction(id, "x", nullptr, 0);
                }
            }
        }
        QVERIFY2(accepted > 40 && accepted < 290, qPrintable(QString::number(accepted)));
    }

    void files_data()
    {
        addColumns<QByteArray, QByteArray, QString, int>();
        const QByteArray column = R"(, "column": "level")";
        QTest::newRow("plain") << QByteArray("time,level\n0,1\n1,2\n2,3\n") << column << "1 2 3 1" << 0;
        QTest::newRow("other line ends") << QByteArray("time\tlevel\r\n0\t1\r\n\r\n1\t2\r\n") << column << "1 2 1 2" << 0;
        QTest::newRow("marked and quoted") << QByteArray("\xef\xbb\xbf\"level\";n\n\"4\";x\n \"5\" ;\n") << column << "4 5 4 5" << 0;
        QTest::newRow("separators in cells") << QByteArray("\"a,b;c\";level\n\"1;2\";\"3\"\n4;5\n") << column << "3 5 3 5" << 0;
        QTest::newRow("first column") << QByteArray("any\n7\n8") << QByteArray() << "7 8 7 8" << 0;
        QTest::newRow("broken lines") << QByteArray("time,level\n0,1\nx\n1,none\n2,1.5\n3,inf\n4,1e300\n5,2\n") << column << "1 2 1 2" << 1;
        QTest::newRow("held") << QByteArray("level\n1\n2\n") << QByteArray(R"(, "then": "stay")") << "1 2 2 2" << 0;
        QTest::newRow("no such column") << QByteArray("time,levels\n0,1\n") << column << "- - - -" << 1;
        QTest::newRow("no line") << QByteArray("level\n") << column << "- - - -" << 1;
        QTest::newRow("empty") << QByteArray() << column << "- - - -" << 1;
        QTest::newRow("nothing but separators") << QByteArray(2'000'000, ',') << column << "- - - -" << 1;
        QTest::newRow("too large") << QByteArray("level\n") + QByteArray("1\n").repeated(int(largestCsvFile) / 2) << column << "- - - -" << 1;
    }
    /// Of a file that is wrong the rest is used, in one sentence that names the file.
    void files()
    {
        const auto [contents, more, expected, noteCount] = currentRow<QByteArray, QByteArray, QString, int>();
        QTemporaryDir folder;
        const QString path = writeFile(folder.filePath("values.csv"), contents);
        SimulatedService s(service(item("n", "{\"as\": \"file\", \"every\": 100, \"file\": \"" + path.toUtf8() + '"' + more + '}')));
        QStringList values;
        for (const int time : {0, 100, 200, 300}) {
            s.to(time);
            values += s.value(":result:s:n:").isValid() ? s.value(":result:s:n:").toString() : QString("-");
        }
        QCOMPARE(values.join(' '), expected);
        QCOMPARE(s.notes.size(), noteCount);
        QCOMPARE(s.problem, s.notes.join('\n'));
        for (const QString& note : qAsConst(s.notes))
            QVERIFY2(note.startsWith(path + ": "), qPrintable(note));
        if (contents.contains("none"))
            QVERIFY2(s.notes.first().contains(": 5 of 7 "), qPrintable(s.notes.first()));
    }
    void filesThatAreNone()
    {
        QTemporaryDir folder;
        QCOMPARE(::mkfifo(qPrintable(folder.filePath("pipe")), 0600), 0);
        for (const QString& path : {folder.filePath("missing.csv"), folder.filePath("pipe"), folder.path()}) {
            const CsvColumn column = readCsvColumn(path, "level", false);
            QVERIFY2(column.problem.startsWith(path + ": "), qPrintable(column.problem));
            QVERIFY(column.values.isEmpty());
        }
        writeFile(folder.filePath("odd.csv"), "level\n1\ninf\nnan\n-1e400\n2e3\n");
        QCOMPARE(readCsvColumn(folder.filePath("odd.csv"), "level", false).values, (QVariantList {1., 2000.}));
        writeFile(folder.filePath("texts.csv"), "state,n\nidle,1\n\"very \"\"hot\"\"\",2\n,3\n");
        QCOMPARE(readCsvColumn(folder.filePath("texts.csv"), "state", true).values, (QVariantList {"idle", "very \"hot\"", ""}));
    }

    /// What an item was in a recording, in its time and as far as it goes, in items of every type.
    void recordings()
    {
        QTemporaryDir folder;
        const QString path = writeFile(folder.filePath("a.kivlog"), R"({"format":"kiv-recording","version":1}
{"t":0,"service":"otdr","snapshot":1}
{"t":50,"service":"otdr","id":":result:otdr:a:","type":"double","value":1.5}
{"t":60,"service":"otdr","id":":result:otdr:b:","type":"std::string","value":"idle"}
{"t":150,"service":"otdr","id":":result:otdr:a:","value":2.5}
{"t":160,"service":"otdr","id":":result:otdr:a:","quality":"failing"}
{"t":240,"service":"otdr","id":":result:otdr:a:","value":3.5}
{"t":260,
{"t":250,"service":"otdr","id":":result:otdr:a:","value":4.5}
{"t":340,"service":"otdr","id":":result:otdr:a:","removed":true}
{"t":460,"service":"otdr","id":":result:otdr:b:","value":"done"}
{"t":470,)");
        const auto moving = [&](const QString& type, const QString& more) {
            return QString(R"({ "service": "s", "items": [ { "id": ":result:s:n:", "type": "%1", "moves":
                    { "as": "recording", "every": 100, "file": "%2"%3 } } ] })").arg(type, path, more).toUtf8();
        };
        const auto shown = [](SimulatedService& s) {
            QStringList values;
            for (const int time : {0, 99, 100, 200, 300, 400, 500}) {
                s.to(time);
                values += s.value(":result:s:n:").isValid() ? s.value(":result:s:n:").toString() : QString("-");
            }
            return values.join(' ');
        };
        SimulatedService number(moving("double", ", \"item\": \":result:otdr:a:\""));
        QCOMPARE(shown(number), QString("1.5 1.5 2.5 4.5 - - 1.5"));
        QCOMPARE(number.notes.size(), 1);
        QVERIFY2(number.notes.first().startsWith(path + ": ") && number.notes.first().endsWith(": 1"), qPrintable(number.notes.first()));
        SimulatedService text(moving("std::string", ", \"item\": \":result:otdr:b:\", \"then\": \"stay\""));
        QCOMPARE(shown(text), QString("idle idle idle idle idle done done"));
        // Nothing of that id, or of that type.
        SimulatedService other(moving("double", ""));
        QCOMPARE(shown(other), QString("- - - - - - -"));
        QVERIFY2(other.notes.value(0).contains("no value of :result:s:n:"), qPrintable(other.notes.value(0)));
        SimulatedService unfit(moving("int", ", \"item\": \":result:otdr:b:\""));
        QCOMPARE(shown(unfit), QString("- - - - - - -"));
        const QString nowhere = readRecordedValues(folder.filePath("none"), "a", 100).problem;
        QVERIFY2(nowhere.startsWith(folder.filePath("none")), qPrintable(nowhere));
    }

    /// The example of the documentation does what is said of it there.
    void example()
    {
        QString page = QString::fromUtf8(contentsOf(UIUTILS_SOURCE_DIR "/docs/service-files.md"));
        page = page.mid(page.indexOf("\n## Simulation\n")).section("```", 1, 1).mid(int(strlen("json")));
        SimulatedService s(page.replace("\"service\": \"powermeter\"", "\"service\": \"s\"").toUtf8());
        const QString level = ":result:powermeter:test:level:";
        const QVariant first = s.value(level);
        QCOMPARE(s.act(":action:powermeter:test:start:", "fiber 7"), "Measuring fiber 7.");
        s.to(5000);
        QVERIFY(s.value(level) != first && s.value(level).toDouble() >= -32 && s.value(level).toDouble() <= -18);
        QVERIFY(QStringList({"done", "failed"}).contains(s.value(":result:powermeter:test:state:").toString()));
        s.to(20'000);
        QVERIFY(!s.client->isValid());
        s.to(26'000);
        QVERIFY(s.client->isValid());
        s.to(41'000);
        // Slowness would make the test wait.
        s.backend.service("s")->setDelay(0);
        QCOMPARE(s.act(":action:powermeter:test:stop:"), "!The laser is locked.");
    }

    /// A file that is read again ends what it let happen, and judges what has not moved since.
    void readAgain()
    {
        QTemporaryDir folder;
        EmbeddedBackend backend;
        simulate(backend, Simulated::All);
        const QByteArray items = R"({"id": ":result:s:a:", "type": "int", "value": 3, "judged": {"passing": {"to": 5}}},
            {"id": ":result:s:b:", "type": "int", "value": 3}, {"id": ":config:s:c:", "type": "int", "value": 3})";
        const QString path = writeFile(folder.filePath("s.service.json"),
                service(items, R"([{"after": 0, "vanish": true, "quality": "failing", "ready": false}])"));
        QVERIFY(backend.loadFile(path));
        QJsonObject document = QJsonDocument::fromJson(contentsOf(path)).object();
        backend.service("s")->setValue(":config:s:c:", 4);
        KIVClientInterface* client = KIVClientInterface::getSessionBusClient("s");
        const auto reload = [&](QByteArray contents) {
            QStringList problems;
            writeFile(path, contents);
            return backend.reloadFile(path, &document, &problems);
        };
        const auto quality = [client](const char* id) { return client->getItem(id)->getQualityCode(); };
        QVERIFY(!client->isValid());
        QVERIFY(reload(service(items, R"([{"after": 90000, "error": "x"}])")));
        QVERIFY(client->isValid() && client->getItem(":result:s:b:")->isReady());
        QCOMPARE(quality(":result:s:b:"), int(KIVClientItem::QualityNone));
        QVERIFY(client->setItem(":config:s:c:", 5));
        QVERIFY(backend.service("s")->setQuality(":result:s:b:", KIVClientItem::QualityWarning));
        QByteArray stricter = "{\"service\": \"s\", \"items\": [" + items + "]}";
        QVERIFY(reload(stricter));
        QVERIFY(backend.service("s")->setQuality(":result:s:b:", KIVClientItem::QualityWarning));
        QVERIFY(reload(stricter.replace("\"to\": 5", "\"to\": 2")));
        QCOMPARE(quality(":result:s:a:"), int(KIVClientItem::QualityFailing));
        QCOMPARE(quality(":result:s:b:"), int(KIVClientItem::QualityWarning));
        QCOMPARE(client->getItem(":config:s:c:")->getValue(), QVariant(5));
    }
};

QTEST_GUILESS_MAIN(SimulationFilesTest)
#include "tst_simulationfiles.moc"
