#include "check/pages/pagecheck.h"
#include "columns.h"
#include "golden.h"

#include <QJsonDocument>
#include <QTemporaryDir>

using namespace uiutils;
using check::Finding;

/// What is told of pages before they run.
class PageCheckTest : public QObject
{
    Q_OBJECT

private:
    QVector<names::ItemFacts> factsIn(const QString& folder) const
    {
        QVector<names::ItemFacts> facts;
        const QFileInfoList files = QDir(folder).entryInfoList({"*.service.json"}, QDir::Files, QDir::Name);
        for (const QFileInfo& file : files)
            facts += names::factsOfDocument(QJsonDocument::fromJson(contentsOf(file.filePath())).object());
        return facts;
    }

    QByteArray lines(const QVector<Finding>& findings) const
    {
        QByteArray text;
        for (const Finding& finding : findings)
            text += check::toLine(finding).toUtf8() + '\n';
        return text;
    }

    /// What is told of a page with these lines in it, without its name.
    QByteArray told(const QByteArray& body, const QStringList& imports = {}) const
    {
        const QString page = writeFile(m_folder.filePath("page.qml"),
            "import QtQuick 2.15; import UiUtils 1.0; import UiUtils.Controls 1.0\n" + body);
        return lines(check::checkPages({page}, {imports, m_items})).replace(page.toUtf8() + ':', "");
    }

    QTemporaryDir m_folder;
    const QVector<names::ItemFacts> m_items = factsIn(UIUTILS_SOURCE_DIR "/platform/reference/services");

private Q_SLOTS:
    void wrongPages_data()
    {
        addColumns<QString>();
        const QStringList pages = QDir(UIUTILS_TEST_DATA_DIR "/check/pages").entryList({"[a-z]*.qml"}, QDir::Files);
        QVERIFY(pages.size() >= 10);
        for (const QString& page : pages)
            QTest::newRow(qPrintable(page)) << page;
    }

    /// Each with what a new user is told of it.
    void wrongPages()
    {
        const auto [page] = currentRow<QString>();
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(UIUTILS_TEST_DATA_DIR "/check/pages"));
        const QByteArray actual = lines(check::checkPages({page}, {{}, m_items}));
        QVERIFY(QDir::setCurrent(before));
        const QString golden = UIUTILS_TEST_DATA_DIR "/check/pages/" + page.chopped(4) + ".txt";
        const QString difference = goldenDifference(golden, actual);
        QVERIFY2(difference.isEmpty(), qPrintable(difference));
    }

    void rightPages_data()
    {
        addColumns<QByteArray>();
        QTest::newRow("a name that the page declares")
            << QByteArray("Item { property int optical_cfg_mdoe: 1; width: optical_cfg_mdoe }");
        QTest::newRow("a name that the page registers")
            << QByteArray("Item { UiData { type: \"int\"; registerId: \"own_cfg_name\" } width: own_cfg_name.value }");
        QTest::newRow("a variable of another meaning")
            << QByteArray("Item { function f(optical_res_loss) { optical_res_loss.value = 3; return optical_res_loss.vlaue } }");
        QTest::newRow("an item that is asked for")
            << QByteArray("Item { width: typeof spare_res_loss === \"undefined\" ? 1 : spare_res_loss.value }");
        QTest::newRow("a service that is asked for")
            << QByteArray("Item { width: services.spare === undefined ? 1 : spare_res_loss.value }");
        QTest::newRow("a member that is asked for")
            << QByteArray("Item { visible: optical_res_loss.valueOk === undefined }");
        QTest::newRow("a property that a component's user may set")
            << QByteArray("Item { property var measured: optical_res_loss; function f() { measured.value = 3 } }");
        QTest::newRow("a property that is changed")
            << QByteArray("Item { Item { id: a; property var what: optical_res_loss }\n"
                          "function f() { a.what = { vlaue: 1 }; return a.what.vlaue } }");
        QTest::newRow("a property that is changed by its name")
            << QByteArray("Item { Item { id: a; property var what: optical_res_loss; width: what.vlaue }\n"
                          "Binding { target: a; property: \"what\"; value: null } }");
        QTest::newRow("an object between with a property of that name")
            << QByteArray("Item { readonly property var item: optical_res_loss\nLoader { onLoaded: item.start() } }");
        QTest::newRow("roles of a model")
            << QByteArray("ListView { model: optical_res_events.value; delegate: Text { text: model.kind + knid } }");
        QTest::newRow("a parameter of a signal") << QByteArray("Text { id: lnk; onLinkActivated: print(link) }");
        QTest::newRow("a name that only the program knows") << QByteArray("Text { text: backend.title }");
        QTest::newRow("everything an item has")
            << QByteArray("Item { width: optical_cfg_mode.enumCount + optical_cfg_range.minRange\n"
                          "Component.onCompleted: { optical_cfg_stages.setAt(0, 2); optical_cfg_range.value = 20\n"
                          "optical_cfg_stages.arraySelection = 1; optical_cfg_mode.value = 2\n"
                          "optical_cfg_mode.value = optical_cfg_mode.enums.Manual; optical_cfg_offset.value = -3\n"
                          "optical_act_start.invokeWithStringArg(\"now\"); optical_cfg_limits.value.spliceLoss = 2\n"
                          "optical_res_loss.valueChanged.connect(() => {}); print(optical_res_loss.toString())\n"
                          "services.optical.applyChanges(); print(services[\"orb.base.workflow_manager_app\"].name) } }");
        QTest::newRow("handlers of an item's signals")
            << QByteArray("Connections { target: optical_cfg_range; function onErrorChanged(id, error) {}\n"
                          "function onValueChanged() {} }");
        QTest::newRow("entries that suit")
            << QByteArray("Column { NumberEntry { item: optical_cfg_range } TextEntry { item: optical_cfg_cable_1 }\n"
                          "ChoiceEntry { item: optical_cfg_mode } SwitchEntry { item: optical_cfg_storeTraces }\n"
                          "ListEntry { item: optical_cfg_stages } HexEntry { item: optical_cfg_pulse }\n"
                          "ItemSlider { item: optical_cfg_backscatter } ItemEntry { item: optical_cfg_limits }\n"
                          "ItemSlider { item: optical_cfg_calibration; minimum: 0; maximum: 9 } }");
        QTest::newRow("bindings that suit")
            << QByteArray("Column { Text { text: optical_res_loss.valueString; visible: optical_cfg_storeTraces.value }\n"
                          "Text { text: \"\" + optical_cfg_stages.value; visible: optical_cfg_mode.value == \"1\" }\n"
                          "property var kept: optical_res_loss; ListView { model: optical_res_events.value } }");
        QTest::newRow("types of all origins")
            << QByteArray("Column { component Own: Text {} Own {} Timer {} ListModel { id: rows } Repeater { model: rows } }");
        QTest::newRow("one id in two components")
            << QByteArray("Column { Component { Text { id: a } } Component { Text { id: a } }\n"
                          "Repeater { model: 2; Text { id: a } } Text { id: b; x: a.x } }");
        QTest::newRow("two values of one property")
            << QByteArray("Item { width: 5; Behavior on width { NumberAnimation {} } NumberAnimation on x { id: n; to: 3 } x: 2\n"
                          "states: [ State { name: \"a\"; PropertyChanges { target: n; to: 4 } }, State { name: \"b\" } ]\n"
                          "anchors.left: parent.left; anchors.right: parent.right; Keys.onUpPressed: {} Keys.onDownPressed: {} }");
        QTest::newRow("names like those of properties")
            << QByteArray("Item { property int colour: 1; ListModel { ListElement { titel: \"a\"; txt: \"b\" } }\n"
                          "Item { property alias itme: t.text; Timer { interval: 5 } Text { id: t; font { bold: true; weight: Font.Bold } } } }");
        QTest::newRow("built-in types behind the name of an import")
            << QByteArray("import QtQuick 2.15 as Q\nQ.Item { Q.Timer { interval: 5 } Q.Connections { target: null }\n"
                          "Q.ListModel { Q.ListElement { colour: \"red\" } } Q.Component { Q.Item {} } }");
        QTest::newRow("inside a property of a group") << QByteArray("Rectangle { border { width: 2; color: \"red\" } }");
    }

    /// What works is not complained about, and neither is what only a running page can tell.
    void rightPages()
    {
        const auto [body] = currentRow<QByteArray>();
        QCOMPARE(told(body), QByteArray());
    }

    void rules_data()
    {
        addColumns<QByteArray, QByteArray>();
        QTest::newRow("an alias that stays") << QByteArray("Item { Item { id: a; readonly property var what: optical_res_loss }\n"
                                                          "width: a.width; Item { readonly property var own: optical_res_loss; x: own.vlaue } }")
                                             << QByteArray("3:76: error: An item has no \"vlaue\"");
        QTest::newRow("a constant of a function") << QByteArray("Item { function f() { const loss = optical_res_loss; loss.value = 1 } }")
                                                  << QByteArray("only settings can be written");
        QTest::newRow("an item of a guarded name's service") << QByteArray("Item { x: services.optical ? optical_res_los.value : 0 }")
                                                             << QByteArray("No item has the name optical_res_los.");
        QTest::newRow("a name in brackets") << QByteArray("Item { visible: services[\"optcal\"].isAvailable }")
                                            << QByteArray("There is no service \"optcal\".");
        QTest::newRow("the beginning of a name") << QByteArray("Text { text: optical_res_loss.unit }")
                                                 << QByteArray("An item has no \"unit\". Did you mean unitString?");
        QTest::newRow("a step") << QByteArray("Item { function f() { ++optical_res_progress.value } }")
                                << QByteArray("optical_res_progress is a result");
        QTest::newRow("a limit") << QByteArray("Item { function f() { optical_cfg_backscatter.value = -100.5 } }")
                                 << QByteArray("reject -100.5: optical_cfg_backscatter accepts -90 to -60.");
        QTest::newRow("a text as a choice") << QByteArray("Item { x: (optical_cfg_mode.value) != 'Auto' ? 1 : 0 }")
                                            << QByteArray("which never equals a text");
        QTest::newRow("an element of a scalar") << QByteArray("Item { function f() { optical_cfg_range.setAt(0, 1) } }")
                                                << QByteArray("has no elements");
        QTest::newRow("a service's handler") << QByteArray("Connections { target: services.optical; function onAvailableChanged() {} }")
                                             << QByteArray("A service has no signal \"availableChanged\"");
        QTest::newRow("a handler of what is no signal") << QByteArray("Connections { target: optical_res_loss; function onIsReady() {} }")
                                                        << QByteArray("An item has no signal \"isReady\"");
        QTest::newRow("an old handler") << QByteArray("Connections { target: optical_res_loss; onChanged: {} }")
                                        << QByteArray("An item has no signal \"changed\"");
        QTest::newRow("a choice that two entries offer") << QByteArray("SegmentedChoice { item: optical_cfg_cable_1 }")
                                                         << QByteArray("SegmentedChoice does not suit optical_cfg_cable_1, which is a text");
    }

    void rules()
    {
        const auto [body, expected] = currentRow<QByteArray, QByteArray>();
        const QByteArray actual = told(body);
        QVERIFY2(actual.contains(expected), actual.constData());
        QCOMPARE(actual.count('\n'), 1);
    }

    /// The tree's own pages, with nothing but modules that their programs bring along.
    void ownPages_data()
    {
        addColumns<QString, QString>();
        const QString shipped = UIUTILS_SOURCE_DIR "/platform/reference/services";
        for (const char* folder : {"apps/demo/qml", "apps/inspector/qml", "apps/uiutils-qml", "apps/pdf_viewer/qml",
                 "qml/UiUtils/Controls", "docs/examples", "docs/examples/gallery", "examples/form", "examples/report"})
            QTest::newRow(folder) << QString(folder) << shipped;
        for (const char* folder : {"examples/page", "examples/platform"})
            QTest::newRow(folder) << QString(folder) << UIUTILS_SOURCE_DIR "/" + QString(folder) + "/services";
        QTest::newRow("tests/qml") << QString("tests/qml") << QString(UIUTILS_SOURCE_DIR "/tests/qml/services");
    }

    void ownPages()
    {
        const auto [folder, services] = currentRow<QString, QString>();
        QStringList pages;
        const QFileInfoList files = QDir(UIUTILS_SOURCE_DIR "/" + folder).entryInfoList({"*.qml"}, QDir::Files);
        for (const QFileInfo& file : files)
            pages += file.filePath();
        QVERIFY(!pages.isEmpty());
        QVector<Finding> findings = check::checkPages(pages, {{}, factsIn(services)});
        findings.erase(std::remove_if(findings.begin(), findings.end(),
                           [](const Finding& finding) {
                               // Debian's qmllint crashes over some of them, which is no fault of theirs.
                               return finding.message.contains("that the program itself brings along") || finding.message.contains("qmllint crashed");
                           }),
            findings.end());
        QCOMPARE(lines(findings), QByteArray());
    }

    /// Files of modules and of folders that a page imports are read, each once, and circles end.
    void usedFiles()
    {
        const QString module = m_folder.filePath("modules/Parts/");
        writeFile(module + "qmldir", "module Parts\nPart 1.0 Part.qml\nsingleton Unused 1.0 Unused.qml\n");
        writeFile(module + "Part.qml", "import QtQuick 2.15\nimport Parts 1.0\nPart { x: optical_res_los.value }\n");
        writeFile(module + "Unused.qml", "import QtQuick 2.15\nItem { x: optical_res_los.value }\n");
        const QString folder = m_folder.filePath("pages/");
        writeFile(folder + "Other.qml", "import QtQuick 2.15\nimport \"../pages\"\nItem { Main { } x: optical_res_lss.value }\n");
        QFile::link(folder + "Other.qml", folder + "Linked.qml");
        QFile::link("Loop.qml", folder + "Loop.qml");
        const QString main = writeFile(folder + "Main.qml",
            "import QtQuick 2.15\nimport Parts 1.0\nimport \".\" as Here\nItem { Part {} Other {} Linked {} Here.Main {} }\n");
        const QVector<Finding> findings = check::checkPages({main, main}, {{m_folder.filePath("modules")}, m_items});
        QCOMPARE(findings.size(), 2);
        QCOMPARE(findings.at(0).file, module + "Part.qml");
        QCOMPARE(findings.at(1).file, folder + "Other.qml");
    }

    void badInput_data()
    {
        addColumns<QByteArray, QByteArray>();
        const QByteArray head = "import QtQuick 2.15\nItem { function f() {\n";
        QTest::newRow("empty") << QByteArray() << QByteArray("error");
        QTest::newRow("UTF-16") << QByteArray("\xff\xfei\0m\0", 6) << QByteArray("is UTF-16");
        QTest::newRow("no text") << QByteArray("import Q\n\0", 10) << QByteArray(":2: error: A character with the code 0");
        QTest::newRow("Latin-1") << QByteArray("import Q\n//\n// \xe4") << QByteArray(":3: error: A character here is not UTF-8 (byte 0xe4)");
        QTest::newRow("deep objects") << "import QtQuick 2.15\n" + QByteArray("Item {\n").repeated(20000) + QByteArray("}").repeated(20000)
                                      << QByteArray("nested more than 1000 levels deep");
        QTest::newRow("deep expressions") << head + "return " + QByteArray("(").repeated(50000) + "1" + QByteArray(")").repeated(50000) + "\n} }"
                                          << QByteArray("nested more than 1000 levels deep");
        QTest::newRow("long sum") << head + "return 1" + QByteArray("+1").repeated(50000) + "\n} }"
                                  << QByteArray("nested more than 1000 levels deep");
        QTest::newRow("long chain") << head + "return a" + QByteArray(".a").repeated(50000) + "\n} }"
                                    << QByteArray("nested more than 1000 levels deep");
        QTest::newRow("nothing closed") << "import QtQuick 2.15\n" + QByteArray("Item { x: [{ ").repeated(5000) << QByteArray("error");
        QTest::newRow("long names") << "import QtQuick 2.15\nItem { x: optical_cfg_" + QByteArray("x").repeated(100000) + ".value }"
                                    << QByteArray("No item has the name optical_cfg_xxx");
        QTest::newRow("a name that means itself") << head + "const a = b; const b = a; return a.b } }" << QByteArray();
        QTest::newRow("strange imports")
            << QByteArray("import \"\"\nimport \"/\" as Root\nimport \"qrc:/x.js\" as X\nimport \"http://127.0.0.1:1/\"\nimport \"..\"\nimport QtQuick 2.15\nItem {}")
            << QByteArray();
    }

    /// Words, never a crash.
    void badInput()
    {
        const auto [contents, expected] = currentRow<QByteArray, QByteArray>();
        const QString page = writeFile(m_folder.filePath("bad/page.qml"), contents);
        const QByteArray actual = lines(check::checkPages({page}, {{}, m_items}));
        QVERIFY2(expected.isEmpty() ? actual.isEmpty() : actual.contains(expected), actual.left(2000).constData());
    }

    void noFile()
    {
        const QByteArray actual = lines(check::checkPages({"/nowhere/a.qml", m_folder.path()}, {{}, m_items}));
        QVERIFY2(actual.contains("/nowhere/a.qml: error: The file does not exist."), actual.constData());
        QVERIFY2(actual.contains(": error: This is no file."), actual.constData());
    }

    /// Every line of a long page is checked.
    void longPage()
    {
        QByteArray body = "Column {\n";
        for (int i = 0; i < 100000; ++i)
            body += i == 99000 ? "Text { text: optical_res_los.label }\n" : "Text { text: optical_res_loss.label }\n";
        const QByteArray actual = told(body + "}\n");
        QVERIFY2(actual.contains("\n99003:14: error: No item has the name optical_res_los."), actual.left(500).constData());
        QVERIFY2(actual.startsWith(" warning: qmllint was not asked"), actual.left(500).constData());
        QCOMPARE(actual.count('\n'), 2);
    }

    /// Every proposal compares with all names: a page for other services is still checked soon.
    void manyWrongNames()
    {
        QByteArray body = "Column {\n";
        for (int i = 0; i < 5000; ++i)
            body += "Text { text: optical_res_los" + QByteArray::number(i) + ".label }\n";
        const QByteArray actual = told(body + "}\n");
        const int proposed = actual.count("Did you mean");
        QCOMPARE(actual.count("No item has the name"), 5000);
        QVERIFY2(proposed > 0 && proposed < 5000 && proposed * m_items.size() < 300000, qPrintable(QString::number(proposed)));
    }

    /// Without services, names of items are not judged.
    void noServices()
    {
        const QString page = writeFile(m_folder.filePath("none/page.qml"),
            "import QtQuick 2.15\nText { text: any_cfg_name.label; visible: services.any.isAvailable }\n");
        QCOMPARE(lines(check::checkPages({page}, {})), QByteArray());
    }
};

QTEST_GUILESS_MAIN(PageCheckTest)
#include "tst_pagecheck.moc"
