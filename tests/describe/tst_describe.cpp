#include "columns.h"
#include "files.h"

#include <QDirIterator>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLibraryInfo>
#include <QStandardPaths>
#include <QTemporaryDir>

namespace {

const QString services = UIUTILS_SOURCE_DIR "/platform/reference/services";

Outcome run(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    return ended(process);
}

Outcome describe(const QStringList& arguments)
{
    return run(UIUTILS_DESCRIBE_PROGRAM, arguments);
}

/// Every file of a folder by its path, with its bytes.
QMap<QString, QByteArray> filesBelow(const QString& folder)
{
    QMap<QString, QByteArray> files;
    QDirIterator all(folder, QDir::Files, QDirIterator::Subdirectories);
    while (all.hasNext()) {
        const QString path = all.next();
        files.insert(path.mid(folder.size()), contentsOf(path));
    }
    return files;
}

} // namespace

/// The program as users call it, and what pages and qmllint make of its modules.
class DescribeTest : public QObject
{
    Q_OBJECT

private:
    QString page(const QByteArray& name, const QByteArray& body) const
    {
        return writeFile(m_folder.filePath("pages/" + name + ".qml"), "import QtQuick 2.15\nimport UiUtils 1.0\n" + body);
    }
    /// What a page logs, or why it is not shown.
    QString shown(const QString& path, const QStringList& options = {}) const
    {
        const Outcome outcome = run(UIUTILS_QML_PROGRAM, QStringList {path, "--root", m_folder.filePath(QString("root%1").arg(++m_runs)), "--grab", m_folder.filePath("page.png"),
                                            "--services", m_folder.filePath("services")} + options);
        return outcome.errors;
    }
    /// What qmllint says, which knows the modules by this option.
    QString linted(const QString& path, const QStringList& modules) const
    {
        const Outcome outcome = run(UIUTILS_QMLLINT, QStringList {"-U", "-I", QLibraryInfo::location(QLibraryInfo::Qml2ImportsPath), "-I", UIUTILS_QML_BUILD}
                        + modules + QStringList(path));
        return outcome.exitCode == 0 ? outcome.errors : QString("status %1\n").arg(outcome.exitCode) + outcome.errors;
    }
    QString linted(const QString& path) const { return linted(path, {"-I", imports()}); }
    QString imports() const { return m_folder.filePath("imports"); }

    QTemporaryDir m_folder;
    /// Each begins with the values of the file.
    mutable int m_runs = 0;

private Q_SLOTS:
    void initTestCase()
    {
        const auto setting = [](const QString& name, const QString& type, const QJsonObject& more = {}) {
            QJsonObject item {{"id", ":config:bench:setup:" + name + ":"}, {"type", type}, {"label", "Label of " + name}};
            for (auto it = more.begin(); it != more.end(); ++it)
                item.insert(it.key(), it.value());
            return item;
        };
        const QJsonArray choices {QJsonObject {{"value", 4}, {"name", "Auto"}, {"label", "Automatic"}}, QJsonObject {{"value", 7}, {"name", "Manual"}}};
        const QJsonArray members {QJsonObject {{"name", "position"}, {"type", "double"}}};
        const QJsonArray items {setting("mode", "int", {{"value", 4}, {"choices", choices}}), setting("range", "double", {{"value", 20}, {"unit", "km"}, {"minimum", 0.5}, {"maximum", 260}}),
                setting(QString::fromUtf8("größe"), "int", {{"value", 3}}), setting("max-level", "int", {{"value", 1}}),
                QJsonObject {{"id", ":result:bench:test:events:"}, {"type", "listAggregate"}, {"members", members}},
                QJsonObject {{"id", ":action:bench:test:start:"}, {"type", "action"}, {"label", "Start"}}, QJsonObject {{"id", ":result:bench:manifest:"}, {"type", "std::string"}, {"value", ""}}};
        writeFile(m_folder.filePath("services/bench.service.json"), QJsonDocument(QJsonObject {{"service", "com.example.bench"}, {"items", items}}).toJson());
        const Outcome made = describe({"-s", m_folder.filePath("services"), "-o", imports()});
        QCOMPARE(made.exitCode, 0);
        QCOMPARE(made.errors, QString("uiutils-describe: bench: QML cannot spell the names of these items: :config:bench:setup:max-level:. They are left out.\n"));
    }

    void aPageUsesItems()
    {
        const QString path = page("Right", QString::fromUtf8(R"(import Instrument.Bench 1.0
            Item {
                property int mode: Bench.cfg_mode.value
                property KivListAggregateData events: Bench.res_events
                onModeChanged: console.log("mode", mode, Bench.cfg_mode_Manual)
                Component.onCompleted: {
                    Bench.cfg_mode.value = Bench.cfg_mode_Manual
                    console.log(Bench.cfg_range.label, Bench.cfg_range.maxRange, Bench.cfg_größe.value, Bench.act_start.label, events.name)
                    Bench.service.startChanges()
                    console.log(Bench.service.name, Bench.service.isAvailable)
                }
            })").toUtf8());
        const QString log = QString::fromUtf8("qml: mode 4 7\nqml: mode 7 7\nqml: Label of range 260 3 Start events\nqml: com.example.bench true\n");
        QCOMPARE(shown(path, {"-I", imports()}), log);
        QCOMPARE(linted(path), QString());
        // Without an import folder the program makes the modules.
        QCOMPARE(shown(path), log);
        QVERIFY(shown(page("Unknown", "import Instrument.Bnech 1.0\nItem { }")).contains("module \"Instrument.Bnech\" is not installed"));
    }

    /// While a service is away, its items say nothing of themselves: a page that is loaded again in that time has the names that it had.
    void aServiceIsAwayWhenThePageIsLoaded()
    {
        QJsonObject bench = QJsonDocument::fromJson(contentsOf(m_folder.filePath("services/bench.service.json"))).object();
        bench.insert("happens", QJsonArray {QJsonObject {{"after", 300}, {"vanish", true}}});
        const QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkdir("services") && QDir(folder.path()).mkdir("pages"));
        writeFile(folder.filePath("services/bench.service.json"), QJsonDocument(bench).toJson());
        const QByteArray body = "import QtQuick 2.15\nimport UiUtils 1.0\nimport Instrument.Bench 1.0\nItem {\n"
                                "Component.onCompleted: console.log('shown', Bench.cfg_mode.isReady ? 'on' : 'off', Bench.cfg_mode_Manual)\n"
                                "Connections { target: Bench.cfg_mode; function onIsReadyChanged() { console.log('gone') } }\n}\n";
        const QString path = writeFile(folder.filePath("pages/Page.qml"), body);
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove("KIV_SIMULATION");
        process.setProcessEnvironment(environment);
        process.start(UIUTILS_QML_PROGRAM, {path, "--services", folder.filePath("services"), "--root", folder.filePath("root")});
        QByteArray log;
        const auto says = [&](const QByteArray& words) {
            return QTest::qWaitFor([&] { return (log += process.readAllStandardError()).contains(words); }, 30000);
        };
        QVERIFY2(says("shown on 7\n") && says("gone"), log);
        writeFile(path, body + "// saved\n");
        QVERIFY2(says("shown off 7\n"), log);
        QVERIFY2(!log.contains("TypeError") && !log.contains("Describe"), log);
        process.terminate();
        QVERIFY(process.waitForFinished());
    }

    void qmllintFindsWrongNames_data()
    {
        addColumns<QByteArray, QString>();
        QTest::newRow("item") << QByteArray("Bench.cfg_mod.value") << "Property \"cfg_mod\" not found on type \"Bench\"";
        QTest::newRow("property of an item") << QByteArray("Bench.cfg_mode.vlaue") << "Property \"vlaue\" not found on type \"KivData\"";
        QTest::newRow("property of a table") << QByteArray("Bench.res_events.valeu") << "Property \"valeu\" not found on type \"KivData\"";
        // Right, but no crash, which would hide everything else.
        QTest::newRow("member of a row") << QByteArray("Bench.res_events.value.rowCount()") << "Type \"QVariant\" of member \"value\" not found";
        QTest::newRow("choice") << QByteArray("Bench.cfg_mode_Manul") << "Property \"cfg_mode_Manul\" not found";
        QTest::newRow("manifest") << QByteArray("Bench.service.startChagnes()") << "Property \"startChagnes\" not found on type \"Manifest\"";
        QTest::newRow("module") << QByteArray("Bnech.cfg_mode") << "unqualified access";
        QTest::newRow("context name") << QByteArray("bench_cfg_mode") << "unqualified access";
    }
    void qmllintFindsWrongNames()
    {
        const auto [expression, finding] = currentRow<QByteArray, QString>();
        const QString found = linted(page("Wrong", "import Instrument.Bench 1.0\nItem { property var x: " + expression + " }\n"));
        QVERIFY2(found.startsWith("status") && found.contains(finding) && found.contains("at 4:"), qPrintable(found));
    }

    /// Tools that read no QML files have the types from the description.
    void theDescriptionOfTypesSaysTheSame()
    {
        const QStringList types {"-i", imports() + "/Instrument/Bench/plugins.qmltypes"};
        const QByteArray start = "import Instrument.Bench 1.0\nItem { property var x: Bench.";
        for (const char* expression : {"cfg_mode.label", "res_events.value", "cfg_mode_Auto", "service.isAvailable", "tag"})
            QCOMPARE(linted(page("Right", start + expression + " }\n"), types), QString());
        for (const char* expression : {"cfg_mod.label", "cfg_mode.lable", "res_events.valeu", "cfg_mode_Atuo", "service.isAvailble"})
            QVERIFY2(linted(page("Wrong", start + expression + " }\n"), types).startsWith("status"), expression);
    }

    void commandLines_data()
    {
        addColumns<QStringList, int, QString>();
        const QStringList output {"-o", m_folder.filePath("other")};
        QTest::newRow("help") << QStringList {"--help"} << 0 << "--output=FOLDER";
        QTest::newRow("no output") << QStringList {} << 2 << "--output";
        QTest::newRow("empty output") << QStringList {"-o", ""} << 2 << "--output needs a name";
        QTest::newRow("two sources") << output + QStringList {"--bus", "-s", services} << 2 << "exclude each other";
        QTest::newRow("import name") << output + QStringList {"-s", services, "--import-name", "My-Unit"} << 2 << "\"My-Unit\"";
        QTest::newRow("unknown service") << output + QStringList {"-s", services, "opticla"} << 1 << "no service \"opticla\". Nearest: optical.";
        QTest::newRow("no folder") << output + QStringList {"-s", "/nowhere"} << 1 << "/nowhere";
        QTest::newRow("no services") << output + QStringList {"-s", m_folder.filePath("pages")} << 1 << "no service file";
        QTest::newRow("broken file") << output + QStringList {"-s", writeFile(m_folder.filePath("broken/a.service.json"), "{")} << 1 << "a.service.json";
        QTest::newRow("no place") << QStringList {"-s", services, "-o", "/proc/nowhere"} << 1 << "cannot be created";
        QTest::newRow("a service and a deeper name") << output + QStringList {"-s", services, "--import-name", "Our.Unit", "workflow_manager_app"} << 0 << "";
    }
    void commandLines()
    {
        const auto [arguments, exitCode, words] = currentRow<QStringList, int, QString>();
        const Outcome outcome = describe(arguments);
        QCOMPARE(outcome.exitCode, exitCode);
        const QString text = outcome.output + outcome.errors;
        QVERIFY2(words.isEmpty() ? text.isEmpty() : text.contains(words), qPrintable(text));
    }

    void aServiceByNameAndItsFile()
    {
        const QString folder = m_folder.filePath("some");
        QCOMPARE(describe({"-s", services + "/optical.service.json", "-s", services + "/unit.service.json", "-o", folder, "--import-name", "Our.Unit", "optical"}).errors, QString());
        QCOMPARE(namesIn(folder + "/Our/Unit"), QStringList {"Optical"});
        QVERIFY(contentsOf(folder + "/Our/Unit/Optical/qmldir").contains("\nmodule Our.Unit.Optical\n"));
    }

    /// Over the bus a service says what its file says, and every run writes the same.
    void theBusSaysTheSame()
    {
        if (QStandardPaths::findExecutable("dbus-daemon").isEmpty())
            QSKIP("There is no dbus-daemon");
        QProcess bus;
        bus.start("dbus-daemon", {"--session", "--nofork", "--nopidfile", "--print-address"});
        QVERIFY(bus.waitForReadyRead(60000));
        qputenv("DBUS_SESSION_BUS_ADDRESS", bus.readLine().trimmed());
        const QString ofFiles = m_folder.filePath("files");
        const QString ofBus = m_folder.filePath("bus");
        QVERIFY(describe({"--bus", "-o", ofBus}).errors.contains("There is no service on the bus."));
        QProcess kivd;
        kivd.start(UIUTILS_KIVD_PROGRAM, {"-s", services, "-s", m_folder.filePath("services"), "--root", m_folder.filePath("kivd")});
        const QStringList sources {"-s", services, "-s", m_folder.filePath("services"), "-o", ofFiles};
        QCOMPARE(describe(sources).exitCode, 0);
        const QMap<QString, QByteArray> files = filesBelow(ofFiles);
        QVERIFY(files.value("/Instrument/Bench/Bench.qml").contains("cfg_mode_Manual: 7"));
        QTRY_VERIFY_WITH_TIMEOUT(describe({"--bus", "-o", ofBus}).exitCode == 0 && filesBelow(ofBus).size() == files.size(), 60000);
        QCOMPARE(filesBelow(ofBus), files);
        QCOMPARE(describe(sources).exitCode, 0);
        QCOMPARE(filesBelow(ofFiles), files);
        kivd.terminate();
        QVERIFY(kivd.waitForFinished());
        bus.terminate();
        QVERIFY(bus.waitForFinished());
    }
};

QTEST_GUILESS_MAIN(DescribeTest)
#include "tst_describe.moc"
