#include "columns.h"
#include "files.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

const QString services = UIUTILS_SOURCE_DIR "/platform/reference/services";
const QString wrong = UIUTILS_TEST_DATA_DIR "/check/services/value-outside-limits.service.json";
const QString odd = UIUTILS_TEST_DATA_DIR "/check/services/no-limits.service.json";

Outcome run(const QStringList& arguments)
{
    QProcess process;
    process.start(UIUTILS_CHECK_PROGRAM, arguments);
    return ended(process);
}

} // namespace

/// The program as editors and builds call it.
class CheckProgramTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void exitStatus_data()
    {
        addColumns<QStringList, int, int>();
        QTest::newRow("clean") << QStringList {services} << 0 << 0;
        QTest::newRow("errors and a warning") << QStringList {wrong} << 1 << 4;
        QTest::newRow("errors only") << QStringList {"--quiet", wrong} << 1 << 3;
        QTest::newRow("warnings") << QStringList {odd} << 0 << 3;
        QTest::newRow("warnings that count") << QStringList {"--strict", odd} << 1 << 3;
        QTest::newRow("warnings that nobody sees") << QStringList {"--quiet", "--strict", odd} << 1 << 0;
        QTest::newRow("nothing named") << QStringList {} << 2 << 0;
        QTest::newRow("nothing there") << QStringList {"/nowhere"} << 2 << 0;
        QTest::newRow("unknown option") << QStringList {"--nonsense", services} << 2 << 0;
        QTest::newRow("import of nothing") << QStringList {"--import", "/nowhere", services} << 2 << 0;
    }
    void exitStatus()
    {
        const auto [arguments, exitCode, lines] = currentRow<QStringList, int, int>();
        const Outcome outcome = run(arguments);
        QCOMPARE(outcome.exitCode, exitCode);
        QCOMPARE(outcome.output.count('\n'), lines);
        QCOMPARE(outcome.errors.isEmpty(), exitCode != 2);
    }

    /// Nobody takes an empty list on a full disk for a right file.
    void fullDisk()
    {
        QProcess process;
        process.setStandardOutputFile("/dev/full");
        process.start(UIUTILS_CHECK_PROGRAM, {"--json", services});
        QCOMPARE(ended(process).exitCode, 1);
    }

    void json()
    {
        const Outcome outcome = run({"--json", wrong});
        QCOMPARE(outcome.exitCode, 1);
        const QJsonObject object = QJsonDocument::fromJson(outcome.output).object();
        QCOMPARE(object.value("errors").toInt(), 3);
        QCOMPARE(object.value("warnings").toInt(), 1);
        const QJsonObject first = object.value("findings").toArray().at(0).toObject();
        QCOMPARE(first.value("file").toString(), wrong);
        QCOMPARE(first.value("line").toInt(), 4);
        QCOMPARE(first.value("item").toString(), QString(":config:bench:setup:range:"));
        const Outcome clean = run({"--json", services});
        QCOMPARE(QJsonDocument::fromJson(clean.output).object().value("findings").toArray().size(), 0);
    }
};

QTEST_GUILESS_MAIN(CheckProgramTest)
#include "tst_checkprogram.moc"
