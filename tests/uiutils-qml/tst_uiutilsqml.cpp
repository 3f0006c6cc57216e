#include "columns.h"
#include "files.h"

#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLibraryInfo>
#include <QStandardPaths>

/// The program as users start it.
class UiUtilsQmlTest : public QObject
{
    Q_OBJECT

private:
    Outcome run(QStringList arguments) const
    {
        QProcess process;
        arguments += {"--root", m_folder.filePath("root")};
        process.start(UIUTILS_QML_PROGRAM, arguments);
        return ended(process);
    }

    QString page(const QByteArray& body) const
    {
        return writeFile(m_folder.filePath("page.qml"), "import QtQuick 2.15\nimport UiUtils 1.0\n" + body);
    }

    QTemporaryDir m_folder;
    const QString m_services = UIUTILS_SOURCE_DIR "/tests/qml/services";

private Q_SLOTS:
    void commandLines_data()
    {
        addColumns<QStringList, int, QString>();
        QTest::newRow("help") << QStringList {"--help"} << 0 << "--services";
        QTest::newRow("nothing") << QStringList {} << 2 << "Name one page";
        QTest::newRow("two pages") << QStringList {"a.qml", "b.qml"} << 2 << "Name one page";
        QTest::newRow("unknown option") << QStringList {"--colour", "a.qml"} << 2 << "colour";
        QTest::newRow("list and page") << QStringList {"--list", "a.qml"} << 2 << "--list takes no page";
        QTest::newRow("empty folder name") << QStringList {"--services", "", "a.qml"} << 2 << "--services needs";
        QTest::newRow("no such page") << QStringList {"/nowhere/a.qml"} << 1 << "There is no page /nowhere/a.qml";
        for (const char* screen : {"", "800x480", "800x480@", "0x480@133", "800x199@133", "8001x480@133", "800x480@39", "800x480@601", "800x480@133x"})
            QTest::newRow(screen) << QStringList {"--screen", screen, "a.qml"} << 2 << "--screen needs a size of 200 to 8000 pixels";
        QTest::newRow("no such language") << QStringList {"--services", m_services, "--language", "xx", "--list"} << 1 << "no language \"xx\"";
        QTest::newRow("a language") << QStringList {"--services", m_services, "--language", "de", "--list"} << 0 << "field_cfg_name";
        const QStringList replayed {"a.qml", "--replay", "a"};
        QTest::newRow("no such recording") << QStringList {"a.qml", "--replay", "/nowhere/a"} << 1 << "/nowhere/a cannot be read";
        QTest::newRow("no recording") << QStringList {"a.qml", "--replay", UIUTILS_SOURCE_DIR "/README.md"} << 1 << "not a recording";
        QTest::newRow("two kinds of services") << replayed + QStringList {"--services", m_services} << 2 << "not from both";
        QTest::newRow("speed without a recording") << QStringList {"a.qml", "--speed", "2"} << 2 << "--speed needs --replay";
        QTest::newRow("moments without expectations") << replayed + QStringList {"--grab-at", "1"} << 2 << "--grab-at needs --expect";
        QTest::newRow("expectations without moments") << replayed + QStringList {"--expect", "a"} << 2 << "--expect needs --grab-at";
        QTest::newRow("moments and a picture") << replayed + QStringList {"--grab-at", "1", "--expect", "a", "--grab", "a"} << 2 << "neither --grab";
        QTest::newRow("moments before the first") << replayed + QStringList {"--grab-at", "1", "--expect", "a", "--from", "2"} << 2 << "--from does not";
        for (const char* times : {"", "1,", "x", "2,1", "-1", "nan", "1e300"})
            QTest::newRow(times) << replayed + QStringList {"--expect", "a", "--grab-at", times} << 2 << "ascending order";
        for (const char* speed : {"0", "-1", "nan", "inf", "x"})
            QTest::newRow(qPrintable(QString("speed ") + speed)) << replayed + QStringList {"--speed", speed} << 2 << "--speed needs a number";
        QTest::newRow("inspector of an audit") << QStringList {"--inspect", "--audit", "a.qml"} << 2 << "--inspect is for a page that is used";
        QTest::newRow("check and picture") << QStringList {"--check", "--grab", "a.png", "a.qml"} << 2 << "--check allows neither";
        QTest::newRow("findings of nothing") << QStringList {"--json", "a.qml"} << 2 << "--json needs --check";
        QTest::newRow("moments and a check") << replayed + QStringList {"--grab-at", "1", "--expect", "a", "--check"} << 2 << "nor --check";
        QTest::newRow("no such folder") << QStringList {"--services", "/nowhere", "--list"} << 1 << "/nowhere";
    }
    void commandLines()
    {
        const auto [arguments, exitCode, words] = currentRow<QStringList, int, QString>();
        const Outcome outcome = run(arguments);
        QCOMPARE(outcome.exitCode, exitCode);
        QVERIFY2((outcome.output + outcome.errors).contains(words), qPrintable(outcome.errors));
    }

    void listsTheItems()
    {
        const Outcome outcome = run({"--list", "--services", m_services});
        QCOMPARE(outcome.exitCode, 0);
        const QStringList lines = QString(outcome.output).split('\n');
        QVERIFY2(lines.contains("field_cfg_name\tstd::string\tFiber 7"), qPrintable(outcome.output));
        QVERIFY(lines.contains("field_cfg_mode\tint\tAutomatic"));
    }

    void aPageUsesTheItems()
    {
        const QString file = page("Item { Component.onCompleted: { console.log(field_cfg_name.value, services.field.name);"
                                  " field_cfg_locked.value = 5; console.log(field_cfg_locked.error); Qt.exit(7) } }");
        const Outcome outcome = run({file, "--services", m_services});
        QVERIFY2(outcome.exitCode == 7, qPrintable(QString::number(outcome.exitCode) + outcome.errors));
        QVERIFY2(outcome.errors.contains("Fiber 7 field"), qPrintable(outcome.errors));
        QVERIFY(outcome.errors.contains("The key is turned."));
    }

    void showsWhatAnotherScreenShows()
    {
        const QString body = "{ width: 99; height: 99; Component.onCompleted: Qt.callLater(() => {"
                             " console.log(width, height, ControlsStyle.touch); Qt.exit(7) }) }";
        for (const char* kind : {"Item ", "import QtQuick.Window 2.15\nWindow "}) {
            const QString file = page("import UiUtils.Controls 1.0\n" + QByteArray(kind) + body.toUtf8());
            const Outcome outcome = run({file, "--services", m_services, "--screen", "800x480@133"});
            QVERIFY2(outcome.exitCode == 7 && outcome.errors.contains("800 480 48"), qPrintable(outcome.errors));
        }
    }

    /// The field in use is above the keyboard, also the last one of a page that could not scroll so far; afterwards the
    /// page is as it was. Without a keyboard the log has one note.
    void screenKeyboard_data()
    {
        addColumns<QByteArray, int>();
        QTest::newRow("keyboard") << QByteArray("qtvirtualkeyboard") << 7;
        QTest::newRow("none") << QByteArray("none") << 8;
    }
    void screenKeyboard()
    {
        const auto [method, exitCode] = currentRow<QByteArray, int>();
        if (exitCode == 7 && !QFile::exists(QLibraryInfo::location(QLibraryInfo::PluginsPath) + "/platforminputcontexts/libqtvirtualkeyboardplugin.so"))
            QSKIP("Qt Virtual Keyboard is not installed");
        const QString file = page("import UiUtils.Controls 1.0\n" + contentsOf(UIUTILS_SOURCE_DIR "/tests/uiutils-qml/keyboard.qml.in"));
        qputenv("QT_IM_MODULE", method);
        const Outcome outcome = run({file, "--services", m_services, "--screen", "800x480@133"});
        qunsetenv("QT_IM_MODULE");
        QVERIFY2(outcome.exitCode == exitCode, qPrintable(QString::number(outcome.exitCode) + outcome.errors));
        QCOMPARE(outcome.errors.count("There is no on-screen keyboard"), exitCode == 8 ? 1 : 0);
    }

    void aServiceWhoseNameQmlCannotSpell()
    {
        const QString file = page("Item { Component.onCompleted: { Qt.exit(workflow_manager_app_cfg_activeWorkOrderId.value =="
                                  " 'WO-1' && services['orb.base.workflow_manager_app'] ? 7 : 8) } }");
        const Outcome outcome = run({file, "--services", UIUTILS_TEST_DATA_DIR "/services"});
        QVERIFY2(outcome.exitCode == 7, qPrintable(QString::number(outcome.exitCode) + outcome.errors));
    }

    void takesAPicture()
    {
        const QString picture = m_folder.filePath("page.png");
        const Outcome outcome = run({page("Rectangle { width: 60; height: 40; color: field_cfg_on.value ? 'red' : 'blue' }"),
                "--services", m_services, "--grab", picture});
        QVERIFY2(outcome.exitCode == 0, qPrintable(outcome.errors));
        const QImage image(picture);
        QCOMPARE(image.size(), QSize(60, 40));
        QCOMPARE(image.pixelColor(30, 20), QColor(Qt::blue));
    }

    /// The picture shows what there is; the exit status says that it is not all.
    void aPictureOfAPageWithErrors()
    {
        const QString picture = m_folder.filePath("faulty.png");
        const QStringList options {"--services", m_services, "--grab", picture};
        const Outcome wrong = run(QStringList {page("Item { width: 60; height: 40; Text { text: missing.name } }")} + options);
        QCOMPARE(wrong.exitCode, 1);
        QVERIFY2(wrong.errors.contains("page.qml:3: ReferenceError: missing is not defined"), qPrintable(wrong.errors));
        QCOMPARE(QImage(picture).size(), QSize(60, 40));
        // What a program or the library notes is no error of the page.
        const Outcome noted = run(QStringList {page("Item { Component.onCompleted: console.error('mine')\n"
                                                    "Timer { onTriggered: {} } Connections { target: field_cfg_on; onValueChanged: {} } }")} + options);
        QVERIFY2(noted.exitCode == 0 && noted.errors.contains("deprecated"), qPrintable(noted.errors));
    }

    void checksAPage_data()
    {
        addColumns<QByteArray, int, QStringList>();
        QTest::newRow("nothing wrong") << QByteArray("Text { text: field_res_loss.valueString }") << 0 << QStringList {};
        // What the files tell stands instead of what the engine says of the same line.
        QTest::newRow("before it runs") << QByteArray("Text { text: field_res_lossy.label }") << 1
                                        << QStringList {":3:14: error: No item has the name field_res_lossy. Did you mean field_res_loss?"};
        QTest::newRow("while it runs") << QByteArray("Item { id: a; property var none: null\nwidth: height + 1; height: width\nx: none.size }") << 1
                                       << QStringList {":3:1: error: When the page runs: QML Item: Binding loop detected for property \"width\"",
                                              ":5: error: When the page runs: TypeError: Cannot read property 'size' of null"};
        QTest::newRow("not loaded") << QByteArray("Item { sparkle: 'red' }") << 1
                                    << QStringList {":3:8: error: When the page runs: Cannot assign to non-existent property \"sparkle\""};
        QTest::newRow("no page") << QByteArray("QtObject {}") << 1 << QStringList {": error: The page is neither an item nor a window."};
        QTest::newRow("ends by itself") << QByteArray("Item { Component.onCompleted: { Qt.quit(); missing() } }") << 1
                                        << QStringList {":3: error: When the page runs: ReferenceError: missing is not defined"};
        QTest::newRow("old form") << QByteArray("Connections { target: field_cfg_on; onValueChanged: {} }") << 1
                                  << QStringList {": error: The page is neither an item nor a window.",
                                         ":3:1: warning: When the page runs: QML Connections: Implicitly defined onFoo properties in Connections are deprecated. "
                                         "Use this syntax instead: function onFoo(<arguments>) { ... }"};
        QTest::newRow("module of a service") << QByteArray("import Instrument.Field 1.0\nText { text: Field.res_loss.label + Field.res_los.label }") << 1
                                             << QStringList {":4:43: error: The service \"field\" has no item res_los. Did you mean res_loss?"};
    }

    void checksAPage()
    {
        const auto [body, exitCode, expected] = currentRow<QByteArray, int, QStringList>();
        const QString file = page(body);
        writeFile(m_folder.filePath("checked/field.service.json"), R"({ "service": "field", "items": [
            { "id": ":config:field:setup:on:", "type": "bool", "label": "On", "value": true },
            { "id": ":result:field:test:loss:", "type": "double", "label": "Loss", "value": 1.5 } ] })");
        const QStringList arguments {file, "--services", m_folder.filePath("checked"), "--check"};
        const Outcome outcome = run(arguments);
        QCOMPARE(QString(outcome.output).remove(file).split('\n', Qt::SkipEmptyParts), expected);
        QCOMPARE(outcome.exitCode, exitCode);
        const QJsonObject told = QJsonDocument::fromJson(run(arguments + QStringList {"--json"}).output).object();
        QCOMPARE(told["findings"].toArray().size(), expected.size());
        QCOMPARE(told["errors"].toInt() > 0, exitCode == 1);
    }

    /// The services of the page count too, even if the page needs none of them.
    void checksTheServicesOfAPage()
    {
        const Outcome outcome = run({page("Item {}"), "--services", m_services, "--check"});
        QCOMPARE(outcome.exitCode, 0);
        QVERIFY2(outcome.output.contains("warning: The number has no"), qPrintable(outcome.output));
        const QString folder = m_folder.filePath("wrong");
        writeFile(folder + "/a.service.json", R"({ "service": "a", "items": [
            { "id": ":config:a:x:", "type": "int", "value": 9, "minimum": 0, "maximum": 5 } ] })");
        const Outcome wrong = run({page("Item {}"), "--services", folder, "--check"});
        QCOMPARE(wrong.exitCode, 1);
        QVERIFY2(wrong.output.contains("a.service.json:2:61: error: 9 is outside the limits 0 to 5. [:config:a:x:]"),
                qPrintable(wrong.output));
    }

    /// The time of the page is that of the recording, whenever the machine gets to it: animations and timers too.
    void testsAPage()
    {
        const QString recording = writeFile(m_folder.filePath("a.kivlog"), R"({"format":"kiv-recording","version":1}
{"t":0,"service":"otdr","snapshot":1}
{"t":0,"service":"otdr","id":":result:otdr:loss:","type":"int","unit":"dB","value":0}
{"t":1005,"service":"otdr","id":":result:otdr:loss:","value":100}
{"t":3000,"service":"otdr","gone":true}
)");
        const QByteArray body = "Rectangle { width: 200; height: 100; color: 'white'; Rectangle { width: 50; height: 50; color: 'red'; x: otdr_res_loss.value\n"
                                "Behavior on x { NumberAnimation { duration: 1000 } } }\n"
                                "Text { objectName: 'loss'; text: otdr_res_loss.valueString } Text { objectName: 'hidden'; text: 'a'; visible: false }\n"
                                "Item { objectName: 'box'; Text { y: 20; objectName: 'x'; text: Math.round(parent.parent.children[0].x) } }\n"
                                "Text { y: 40; property int n; text: n + '\\n' + services.otdr.isAvailable\n"
                                "Timer { interval: 400; repeat: true; running: true; onTriggered: ++parent.n } } }";
        const QString folder = m_folder.filePath("expected");
        const auto check = [&](const QStringList& options) {
            return run(QStringList {page(body), "--replay", recording, "--expect", folder} + options);
        };
        Outcome outcome = check({"--grab-at", "0,1.505,2.5,4", "--pictures", "--update"});
        QVERIFY2(outcome.exitCode == 0 && outcome.output.isEmpty() && outcome.errors.isEmpty(), qPrintable(outcome.output + outcome.errors));
        const auto texts = [&folder](const char* moment) { return contentsOf(folder + "/page@" + moment + "s.txt"); };
        QCOMPARE(texts("0"), QByteArray("loss: 0 dB\nbox/x: 0\nText: 0\\ntrue\n"));
        QCOMPARE(texts("1.505"), QByteArray("loss: 100 dB\nbox/x: 50\nText: 3\\ntrue\n"));
        QCOMPARE(texts("2.5"), QByteArray("loss: 100 dB\nbox/x: 100\nText: 6\\ntrue\n"));
        QVERIFY2(texts("4").endsWith("Text: 10\\nfalse\n"), texts("4"));
        QCOMPARE(QImage(folder + "/page@2.5s.png").pixelColor(120, 45), QColor(Qt::red));
        // Other moments before it make no difference.
        outcome = check({"--grab-at", "0.1,0.777,1.505,1.51,4", "--pictures"});
        QCOMPARE(outcome.exitCode, 1);
        QCOMPARE(namesIn(folder).filter("1.505s"), (QStringList {"page@1.505s.png", "page@1.505s.txt"}));
        QCOMPARE(outcome.output.count("There is no "), 6);
        QVERIFY2(!outcome.output.contains("differs"), outcome.output);

        // One text and one picture are not as expected; what they are lies beside it.
        writeFile(folder + "/page@2.5s.txt", texts("2.5").replace("100 dB", "99 dB"));
        QImage picture(folder + "/page@2.5s.png");
        for (int i = 0; i < 30; ++i)
            picture.setPixelColor(i, 90, Qt::blue);
        picture.save(folder + "/page@2.5s.png");
        outcome = check({"--grab-at", "1.505,2.5", "--pictures"});
        QCOMPARE(outcome.exitCode, 1);
        QCOMPARE(outcome.output, QString("%1/page@2.5s.txt differs; what the page shows is in %1/page@2.5s.actual.txt:\n    - loss: 99 dB\n    + loss: 100 dB\n"
                                         "%1/page@2.5s.png differs; what the page shows is in %1/page@2.5s.actual.png:\n    30 of 20000 pixels differ\n")
                                         .arg(folder).toUtf8());
        QVERIFY(contentsOf(folder + "/page@2.5s.actual.txt").startsWith("loss: 100 dB\n"));
        // Nobody sees a few pixels, and what agrees again leaves nothing behind.
        for (int i = 20; i < 30; ++i)
            picture.setPixelColor(i, 90, Qt::white);
        for (int i = 0; i < 20; ++i)
            picture.setPixelColor(i, 90, i < 19 ? Qt::white : Qt::blue);
        picture.save(folder + "/page@2.5s.png");
        writeFile(folder + "/page@2.5s.txt", texts("2.5").replace("99 dB", "100 dB"));
        outcome = check({"--grab-at", "1.505,2.5", "--pictures"});
        QVERIFY2(outcome.exitCode == 0 && outcome.output.isEmpty(), outcome.output);
        QCOMPARE(namesIn(folder).filter("2.5s.actual"), QStringList());
    }

    void showsARecording()
    {
        const QString recording = writeFile(m_folder.filePath("b.kivlog"), R"({"format":"kiv-recording","version":1}
{"t":0,"service":"otdr","snapshot":1}
{"t":0,"service":"otdr","id":":result:otdr:loss:","type":"int","value":1}
{"t":2000,"service":"otdr","id":":result:otdr:loss:","value":2}
{"t":60000000,"service":"late","snapshot":1}
{"t":60000000,"service":"late","id":":result:late:a:","type":"int","value":7}
)");
        // Only at this speed does the end come before the test gives up.
        const QString file = page("Item { Text { text: otdr_res_loss.value + ' ' + late_res_a.value; onTextChanged: if (text == '2 7') Qt.exit(7) } }");
        const Outcome outcome = run({file, "--replay", recording, "--from", "1.5", "--speed", "1000000"});
        QVERIFY2(outcome.exitCode == 7, qPrintable(QString::number(outcome.exitCode) + outcome.errors));
        const Outcome listed = run({"--list", "--replay", recording, "--from", "3"});
        QCOMPARE(listed.output, QByteArray("otdr_res_loss\tint\t2\n"));
    }

    /// What translators have done is seen at once, also on a page in a folder of its own. What is broken is told.
    void translationsBesideThePage()
    {
        if (QStandardPaths::findExecutable("lrelease", {QLibraryInfo::location(QLibraryInfo::BinariesPath)}).isEmpty())
            QSKIP("lrelease is not installed");
        const auto write = [this](const QString& name, const QByteArray& word) {
            QVERIFY(QDir().mkpath(QFileInfo(m_folder.filePath(name)).path()));
            writeFile(m_folder.filePath(name), "<TS version='2.1' language='de'><context><name>page</name><message><source>Hello</source>"
                                               "<translation>" + word + "</translation></message></context></TS>");
        };
        const QByteArray body = "Item { Component.onCompleted: { console.log(qsTr('Hello')); Qt.exit(7) } }";
        const QStringList options {"--services", m_services, "--language", "de"};
        write("translations/site_pages_de.ts", "Hallo");
        QDir().mkpath(m_folder.filePath("pages"));
        const QString below = writeFile(m_folder.filePath("pages/page.qml"), contentsOf(page(body)));
        for (const QString& file : {page(body), below}) {
            const Outcome outcome = run(QStringList(file) + options);
            QVERIFY2(outcome.exitCode == 7 && outcome.errors.contains("Hallo"), qPrintable(outcome.errors));
        }
        write("pages/translations/site_pages_de.ts", "Servus");
        QVERIFY(run(QStringList(below) + options).errors.contains("Servus"));
        writeFile(m_folder.filePath("translations/site_pages_de.ts"), "<TS><context>");
        const Outcome broken = run(QStringList(page(body)) + options);
        QVERIFY2(broken.exitCode == 7 && broken.errors.contains("site_pages_de.ts cannot be compiled: ") && broken.errors.contains("Hello"),
                qPrintable(broken.errors));
        QVERIFY(QDir(m_folder.filePath("translations")).removeRecursively());
    }

    /// What services say is translated by what is beside their files, in each folder, and again when it is saved. It
    /// brings no language.
    void translationsBesideServices()
    {
        if (QStandardPaths::findExecutable("lrelease", {QLibraryInfo::location(QLibraryInfo::BinariesPath)}).isEmpty())
            QSKIP("lrelease is not installed");
        const auto write = [this](const QString& name, const QByteArray& text, const QByteArray& word) {
            return writeFile(m_folder.filePath(name), "<TS version='2.1' language='de'><context><name>ServiceItem</name><message><source>" + text
                            + "</source><translation>" + word + "</translation></message></context></TS>");
        };
        QStringList options {"--language", "de"};
        for (const char* name : {"a", "b"}) {
            writeFile(m_folder.filePath(QString("%1/%1.service.json").arg(name)), QByteArray(R"({ "service": "X", "items": [
                { "id": ":result:X:t:", "type": "int", "label": "Label of X", "value": 1, "unit": "turns" }] })").replace('X', name));
            options += {"--services", m_folder.filePath(name)};
        }
        write("a/translations/site_de.ts", "Label of a", "Wort a");
        write("b/translations/site_de.ts", "Label of b", "Wort b");
        write("b/translations/more_de.ts", "turns", "Runden");
        write("b/translations/more_nl.ts", "turns", "ronden");
        writeFile(m_folder.filePath("b/translations/broken_de.ts"), "<TS><context>");
        QProcess process;
        process.start(UIUTILS_QML_PROGRAM, QStringList {page(R"(Text {
            property string shown: a_res_t.label + '|' + b_res_t.label + '|' + b_res_t.valueString + '|' + Languages.available.length
            onShownChanged: console.log(shown)
            Component.onCompleted: console.log('shows ' + shown) })"), "--root", m_folder.path()} + options);
        QByteArray log;
        const auto logs = [&](const QByteArray& words) {
            log += process.readAllStandardError();
            return log.contains(words);
        };
        QTRY_VERIFY2_WITH_TIMEOUT(logs("shows Wort a|Wort b|1 Runden|6"), log.constData(), 60000);
        QVERIFY2(log.contains("broken_de.ts cannot be compiled: "), log.constData());
        write("b/translations/site_de.ts", "Label of b", "Anders");
        QTRY_VERIFY2_WITH_TIMEOUT(logs("Wort a|Anders|1 Runden|6"), log.constData(), 60000);
        process.terminate();
        QVERIFY(process.waitForFinished(60000));
        options[1] = "nl";
        const Outcome dutch = run(options + QStringList("--list"));
        QVERIFY2(dutch.exitCode == 1 && dutch.errors.contains("no language \"nl\""), qPrintable(dutch.errors));
    }

    /// The inspector stands beside the page, which keeps its size, or in a window of its own beside that of the page.
    void showsTheInspector()
    {
        const QString picture = m_folder.filePath("page.png");
        const QStringList options {"--services", m_services, "--screen", "300x400@127", "--inspect", "--grab", picture};
        const QByteArray window = "import QtQuick.Window 2.15\nWindow { visible: true; color: 'red' }";
        QCOMPARE(run(QStringList(page("Rectangle { color: 'red' }")) + options).exitCode, 0);
        const QImage beside(picture);
        // 100 mm at 5 pixels.
        QCOMPARE(beside.size(), QSize(800, 400));
        QCOMPARE(beside.pixelColor(299, 399), QColor(Qt::red));
        QVERIFY(beside.pixelColor(310, 200) != QColor(Qt::red));
        QCOMPARE(run(QStringList(page(window)) + options).exitCode, 0);
        QCOMPARE(QImage(picture).size(), QSize(300, 400));
    }

    void judgesAPage()
    {
        const QByteArray body = "import UiUtils.Controls 1.0\nRectangle { width: 300; height: 200; color: 'white'; MouseArea { width: %1; height:"
                                " width; onClicked: {} }\nText { x: 90; color: ControlsStyle.text; font.pixelSize: 30; text: 'W'\n"
                                "Accessible.role: Accessible.StaticText; Accessible.name: text } }";
        const QStringList options {"--services", m_services, "--audit", "--screen", "800x480@254"};
        const Outcome small = run(QStringList {page(QByteArray(body).replace("%1", "70"))} + options);
        QCOMPARE(small.exitCode, 1);
        QVERIFY2(small.output.startsWith("Target: MouseArea: 7.0 x 7.0 mm, at least 9.0\n"), qPrintable(small.output + small.errors));
        // The theme is switched: only on a dark one is the text too light for this surface.
        QVERIFY2(small.output.contains("dark: Contrast: Text \"W\"") && !small.output.contains("light: "), small.output);
        QCOMPARE(run(QStringList {page(QByteArray(body).replace("%1", "90").replace("'white'", "ControlsStyle.background"))} + options).exitCode, 0);
    }

    /// A change of any file that the page is made of, or of a service, shows at once; mistakes stand in the window of the page,
    /// which lives on.
    void followsFiles()
    {
        const auto part = [&](const QByteArray& word) { return "import QtQuick 2.15\nItem { property string word: '" + word + "' }"; };
        const auto service = [&](const QByteArray& value) {
            return "{ \"service\": \"field\", \"items\": [ { \"id\": \":result:field:state:\", \"type\": \"std::string\", \"value\": \"" + value + "\" } ] }";
        };
        QDir(m_folder.path()).mkdir("services");
        const QString described = writeFile(m_folder.filePath("services/field.service.json"), service("idle"));
        const QString component = writeFile(m_folder.filePath("Part.qml"), part("one"));
        const QString file = page("Item { id: page; property string said; Part { id: part }\n"
                                  "Component.onCompleted: console.log('shown', part.word, field_res_state.value)\n"
                                  "Timer { interval: 20; running: true; repeat: true; onTriggered: { for (let i = 0; i < page.parent.children.length; ++i) {\n"
                                  "const item = page.parent.children[i];\n"
                                  "if (item.objectName === 'errorPane' && item.visible && item.text !== page.said) {\n"
                                  "page.said = item.text; console.log('alive', part.word, field_res_state.value, item.text) } } } } }");
        QProcess process;
        process.start(UIUTILS_QML_PROGRAM, {file, "--services", m_folder.filePath("services"), "--root", m_folder.filePath("root")});
        QByteArray log;
        const auto says = [&](const QByteArray& words) {
            return QTest::qWaitFor([&] { return (log += process.readAllStandardError()).contains(words); }, 30000);
        };
        QVERIFY2(says("shown one idle"), log);
        writeFile(component, part("two"));
        QVERIFY2(says("shown two idle"), log);
        // As editors save: another file takes the place.
        const QString next = writeFile(m_folder.filePath("next"), part("three").chopped(1));
        QVERIFY(QFile::remove(component) && QFile::rename(next, component));
        QVERIFY2(says("alive two idle file://") && log.contains("/Part.qml:2"), log);
        writeFile(component, part("four"));
        QVERIFY2(says("shown four idle"), log);
        writeFile(described, service("busy"));
        QVERIFY2(says("shown four busy"), log);
        writeFile(described, service("broken").chopped(1));
        QVERIFY2(says("alive four busy " + described.toUtf8() + ":1:"), log);
        writeFile(described, service("mended"));
        QVERIFY2(says("shown four mended"), log);
        QVERIFY(!log.contains("three") && process.state() == QProcess::Running);
        process.terminate();
        QVERIFY(process.waitForFinished());
    }

    void aFaultyPage()
    {
        const Outcome outcome = run({page("Item { colour: 'red' }"), "--services", m_services});
        QCOMPARE(outcome.exitCode, 1);
        QVERIFY2(outcome.errors.contains("page.qml:3") && outcome.errors.contains("colour"), qPrintable(outcome.errors));
        QCOMPARE(run({page("QtObject {}"), "--services", m_services}).exitCode, 1);
    }
};

QTEST_GUILESS_MAIN(UiUtilsQmlTest)
#include "tst_uiutilsqml.moc"
