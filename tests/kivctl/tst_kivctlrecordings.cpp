#include "columns.h"
#include "servicesonbus.h"

#include <QElapsedTimer>
#include <QJsonDocument>
#include <QJsonObject>

#include <csignal>

namespace {

const QString program = UIUTILS_KIVCTL_PROGRAM;
const QString count = ":config:station:setup:count:";
constexpr int patienceMs = 60000;

template<class Condition> bool waitUntil(const Condition& condition)
{
    return QTest::qWaitFor(condition, patienceMs);
}

/// The lines, without what differs from one recording to the next: the header and the times.
QByteArrayList linesOf(const QByteArray& recording)
{
    QByteArrayList lines = recording.split('\n').mid(1);
    for (QByteArray& line : lines)
        line = line.mid(line.indexOf(',') + 1);
    return lines;
}

QByteArray unzipped(const QString& path)
{
    QProcess gzip;
    gzip.start("gzip", {"-dc", path});
    return ended(gzip).output;
}

} // namespace

/// Recordings as users make and play them, with services of other processes on a bus of their own.
class KivctlRecordingsTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    ServicesOnBus m_services;

    void startServices()
    {
        m_services.start();
        QVERIFY(waitUntil([] { return run({"services"}).output.contains("station\t23"); }));
    }
    /// A recording that has begun.
    void startRecording(QProcess* process, const QString& file, const QStringList& options = {})
    {
        process->start(program, QStringList {"record", file} + options);
        // Everything that is there stands in it before the first change.
        QVERIFY(waitUntil([&] { return contentsOf(file).contains(":config:station:setup:count:") || (file.endsWith(".gz") && contentsOf(file).size() > 300); }));
    }

private Q_SLOTS:
    void initTestCase()
    {
        if (!m_services.startBus())
            QSKIP("There is no dbus-daemon");
    }

    void commandLines_data()
    {
        addColumns<QStringList, int, QString>();
        QTest::newRow("no file") << QStringList {"record"} << 2 << "kivctl record FILE";
        QTest::newRow("not its option") << QStringList {"list", "--loop"} << 2 << "--loop is an option of \"replay\"";
        QTest::newRow("nor of the other") << QStringList {"replay", "a", "--gzip"} << 2 << "--gzip is an option of \"record\"";
        QTest::newRow("speed") << QStringList {"replay", "a", "--speed", "0"} << 2 << "--speed needs";
        QTest::newRow("from") << QStringList {"replay", "a", "--from", "x"} << 2 << "--from needs";
        QTest::newRow("duration") << QStringList {"record", "a", "--duration", "0"} << 2 << "--duration needs";
        QTest::newRow("no bus to replay on") << QStringList {"replay", "a", "-s", UIUTILS_TEST_DATA_DIR "/services"} << 2 << "replayed on a bus";
        QTest::newRow("no bus to play on") << QStringList {"replay", "a", "-s", UIUTILS_TEST_DATA_DIR "/services"} << 2 << "uiutils-qml --replay";
        QTest::newRow("no such recording") << QStringList {"replay", "/nowhere/a"} << 1 << "/nowhere/a cannot be read";
        QTest::newRow("no recording") << QStringList {"replay", UIUTILS_SOURCE_DIR "/README.md"} << 1 << "is not a recording";
        QTest::newRow("no folder") << QStringList {"record", "/nowhere/a"} << 1 << "/nowhere/a cannot be written";
    }
    void commandLines()
    {
        const auto [arguments, exitCode, words] = currentRow<QStringList, int, QString>();
        const Outcome outcome = run(arguments);
        QCOMPARE(outcome.exitCode, exitCode);
        QVERIFY2(outcome.errors.contains(words), qPrintable(outcome.errors));
    }

    /// The same again from a replay, in another process and over the bus, compressed the second time.
    void recordsWhatIsReplayed()
    {
        const QString first = m_folder.filePath("first.kivlog");
        const QString second = m_folder.filePath("second.kivlog.gz");
        startServices();
        QProcess recording;
        startRecording(&recording, first);
        for (const char* value : {"11", "12", "13"})
            QCOMPARE(run({"set", count, value}).exitCode, 0);
        QCOMPARE(run({"action", ":action:station:start:", "once"}).exitCode, 0);
        m_services.end();
        QVERIFY(waitUntil([&] { return contentsOf(first).count("\"gone\":true") == 5; }));
        recording.terminate();
        Outcome outcome = ended(recording);
        QCOMPARE(outcome.exitCode, 0);
        QCOMPARE(outcome.errors, QString());
        QVERIFY2(outcome.output.startsWith("changes: 5, services: 5, seconds: "), outcome.output);
        QVERIFY2(outcome.output.endsWith(" bytes: " + QByteArray::number(contentsOf(first).size()) + '\n'), outcome.output);
        QVERIFY(run({"record", first}).errors.contains("exists"));

        QProcess replay;
        replay.start(program, {"replay", first, "--paused", "--speed", "20"});
        QVERIFY(waitUntil([] { return run({"services"}).output.count('\n') == 5; }));
        startRecording(&recording, second);
        replay.write("\n");
        outcome = ended(replay);
        QVERIFY2(outcome.exitCode == 0 && outcome.errors.isEmpty(), qPrintable(outcome.errors));
        QVERIFY(waitUntil([&] { return unzipped(second).count("\"gone\":true") == 5; }));
        recording.terminate();
        outcome = ended(recording);
        QVERIFY2(outcome.output.startsWith("changes: 5, services: 5, seconds: "), outcome.output);
        QByteArrayList again = linesOf(unzipped(second));
        QByteArrayList before = linesOf(contentsOf(first));
        // Services end in any order.
        const auto sortEnd = [](QByteArrayList& lines) { std::sort(lines.end() - 6, lines.end()); };
        sortEnd(again);
        sortEnd(before);
        QCOMPARE(again, before);
    }

    /// Nobody asks a killed program to end: what it has heard of is in the file all the same.
    void isKilled()
    {
        startServices();
        for (const char* name : {"killed.kivlog", "killed.kivlog.gz"}) {
            const QString file = m_folder.filePath(name);
            QProcess recording;
            startRecording(&recording, file, {"--only", "station"});
            QCOMPARE(run({"set", count, "21"}).exitCode, 0);
            const QByteArray line = "\"id\":\"" + count.toUtf8() + "\",\"value\":21}\n";
            const auto text = [&] { return file.endsWith("gz") ? unzipped(file) : contentsOf(file); };
            QVERIFY(waitUntil([&] { return text().contains(line); }));
            recording.kill();
            recording.waitForFinished();
            QVERIFY(text().endsWith(line));
            QVERIFY(!text().contains("basemgr"));
            QCOMPARE(run({"set", count, "20"}).exitCode, 0);
        }
        m_services.end();
        QProcess replay;
        replay.start(program, {"replay", m_folder.filePath("killed.kivlog.gz"), "--from", "1000", "--paused"});
        QVERIFY(waitUntil([] { return run({"get", count}).output == "21\n"; }));
        QCOMPARE(run({"set", count, "22"}).exitCode, 0);
        QVERIFY(run({"action", ":action:station:start:"}).errors.contains("recording"));
        replay.terminate();
        const Outcome outcome = ended(replay);
        QCOMPARE(outcome.exitCode, 0);
        QVERIFY2(outcome.errors.contains("in the middle"), qPrintable(outcome.errors));
    }

    void endsByItself()
    {
        startServices();
        const Outcome outcome = run({"record", "-", "--duration", "0.2", "--only", "station", "--only", "later"});
        m_services.end();
        QCOMPARE(outcome.exitCode, 0);
        QVERIFY(outcome.output.startsWith("{\"format\":\"kiv-recording\"") && outcome.output.endsWith("}\n"));
        QCOMPARE(outcome.output.count("\"snapshot\""), 1);
        QVERIFY2(outcome.errors.contains("later is not there") && outcome.errors.contains("changes: 0, services: 1"), qPrintable(outcome.errors));
        const QString file = writeFile(m_folder.filePath("short"), outcome.output);
        const Outcome late = run({"replay", file, "--from", "10"});
        QCOMPARE(late.exitCode, 1);
        QVERIFY2(late.errors.contains("ends before that moment"), qPrintable(late.errors));
        QProcess full;
        full.start("bash", {"-c", "exec \"$@\" > /dev/full", "bash", program, "record", "-", "--only", "later"});
        const Outcome outcomeFull = ended(full);
        QCOMPARE(outcomeFull.exitCode, 1);
        QVERIFY2(outcomeFull.errors.contains("The recording ends here."), qPrintable(outcomeFull.errors));
    }
};

QTEST_GUILESS_MAIN(KivctlRecordingsTest)
#include "tst_kivctlrecordings.moc"
