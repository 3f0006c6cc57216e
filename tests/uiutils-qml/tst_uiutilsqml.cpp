#include "columns.h"
#include "files.h"

#include <QImage>
#include <QLibraryInfo>

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
        QTest::newRow("inspector of an audit") << QStringList {"--inspect", "--audit", "a.qml"} << 2 << "--inspect is for a page that is used";
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

    /// A change of any file that the page is made of shows at once; mistakes stand in the window of the page, which lives on.
    void followsFiles()
    {
        const auto part = [&](const QByteArray& word) { return "import QtQuick 2.15\nItem { property string word: '" + word + "' }"; };
        writeFile(m_folder.filePath("Part.qml"), part("one"));
        const QString file = page("import QtQuick.Window 2.15\nItem { id: page; property string said; Part { id: part }\n"
                                  "Component.onCompleted: console.log('shown', part.word)\n"
                                  "Timer { interval: 20; running: true; repeat: true; onTriggered: { for (let i = 0; i < page.parent.children.length; ++i) {\n"
                                  "const item = page.parent.children[i];\n"
                                  "if (item.objectName === 'errorPane' && item.visible && item.text !== page.said) {\n"
                                  "page.said = item.text; console.log('alive', part.word, item.text) } } } } }");
        QProcess process;
        process.start(UIUTILS_QML_PROGRAM, {file, "--services", m_services, "--root", m_folder.filePath("root")});
        QByteArray log;
        const auto says = [&](const QByteArray& words) {
            return QTest::qWaitFor([&] { return (log += process.readAllStandardError()).contains(words); }, 30000);
        };
        QVERIFY2(says("shown one"), log);
        writeFile(m_folder.filePath("Part.qml"), part("two"));
        QVERIFY2(says("shown two"), log);
        // As editors save: another file takes the place.
        writeFile(m_folder.filePath("next"), part("three").chopped(1));
        QFile::remove(m_folder.filePath("Part.qml"));
        QVERIFY(QFile::rename(m_folder.filePath("next"), m_folder.filePath("Part.qml")));
        QVERIFY2(says("alive two") && log.contains("/Part.qml:2"), log);
        writeFile(m_folder.filePath("Part.qml"), part("four"));
        QVERIFY2(says("shown four"), log);
        QVERIFY(!log.contains("shown three") && process.state() == QProcess::Running);
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
