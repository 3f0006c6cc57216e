#include "columns.h"

#include "audit/contrast.h"
#include "audit/screenaudit.h"

#include <QQmlComponent>
#include <QQuickItem>
#include <QQuickView>

using namespace uiutils::audit;

/// The audit of screens names each fault that is planted in a page, and no other. Ten pixels are a millimetre.
class RulesTest : public QObject
{
    Q_OBJECT

private:
    enum Judged { Page, Opened };

    static QStringList complaintsOf(const QByteArray& body, int rules, Judged judged = Page)
    {
        QQuickView view;
        QQmlComponent component(view.engine());
        component.setData("import QtQuick 2.15\nimport QtQuick.Controls 2.15\n"
                          "Rectangle { id: page; width: 800; height: 480; color: 'white'\n"
                          "component Words: Text { font.pixelSize: 29; color: 'black'; textFormat: Text.PlainText }\n"
                          "component Area: MouseArea { width: 90; height: 90; onClicked: {} }\n"
                          "component Sheet: Popup { width: 300; height: 200; padding: 0; background: Rectangle {} }\n"
                          "component Input: TextInput { width: 300; height: 90; font.pixelSize: 32; text: '7'; color: 'black' }\n"
                          "component Field: Input { function openPad() {} }\n"
                        + body + "}", QUrl("qrc:/page.qml"));
        QObject* const root = component.create();
        if (!root)
            return {component.errorString()};
        view.setContent({}, &component, root);
        view.show();
        const ScreenAudit audit(&view, 10);
        return judged == Page ? audit.complaints(rules) : audit.complaintsOfOpened(rules);
    }

private Q_SLOTS:
    void initTestCase() { ScreenAudit::prepare(); }

    void geometry_data()
    {
        addColumns<QByteArray, QString>();
        const auto row = [](const char* name, const char* body, const char* complaint) {
            QTest::newRow(name) << QByteArray(body) << QString(complaint);
        };
        row("no fault", "Area {} Area { x: 110 } Words { y: 200; text: 'Read me' }", "");
        row("small button", "AbstractButton { width: 90; height: 70; text: 'OK' }",
                "Target: AbstractButton \"OK\": 9.0 x 7.0 mm, at least 9.0");
        row("small button with a background", "AbstractButton { width: 90; height: 70; background: Rectangle { color: 'silver' } }",
                "Target: AbstractButton: 9.0 x 7.0 mm, at least 9.0");
        row("covered button", "AbstractButton { width: 90; height: 70 } Rectangle { width: 90; height: 70 }", "");
        row("small disabled button", "AbstractButton { width: 70; height: 90; enabled: false; focusPolicy: Qt.StrongFocus }",
                "Target: AbstractButton: 7.0 x 9.0 mm, at least 9.0");
        row("small field", "TextInput { objectName: 'name'; width: 200; height: 60; font.pixelSize: 32 }",
                "Target: TextInput name: 20.0 x 6.0 mm, at least 9.0");
        row("small tap", "Item { width: 50; height: 90; TapHandler {} }", "Target: Item: 5.0 x 9.0 mm, at least 9.0");
        row("margin of a tap", "Item { x: 20; y: 20; width: 50; height: 50; TapHandler { margin: 20 } }", "");
        row("area without a handler", "MouseArea { width: 9; height: 9 }", "");
        row("target cut by its surface", "Item { width: 50; height: 90; clip: true; Area {} }",
                "Target: Area: 5.0 x 9.0 mm, at least 9.0\nOutside: Area: 40.0 pixels are outside of its surface");
        row("target outside", "Area { x: 750 }",
                "Target: Area: 5.0 x 9.0 mm, at least 9.0\nOutside: Area: 40.0 pixels are outside of its surface");
        row("crowded targets", "Area {} Area { x: 100 }", "Distance: Area: 1.0 mm to Area, at least 2.0");
        row("large targets touch", "Area { width: 110 } Area { width: 110; x: 110 }", "");
        row("one large target", "Area { width: 110 } Area { x: 110 }", "Distance: Area: 1.0 mm to Area, at least 2.0");
        row("target in a target", "Area { width: 300; Area { x: 200 } }", "");
        row("scrolled target", "Flickable { width: 300; height: 40; contentWidth: 300; contentHeight: 90; clip: true; Area {} }", "");
        row("row cut by the view", "Flickable { width: 300; height: 115; contentWidth: 300; contentHeight: 220; clip: true;"
                " Area { width: 300; height: 110 } Area { y: 110; width: 300; height: 110 } }", "");
        row("under a dialog",
                "AbstractButton { width: 10; height: 10 } Rectangle { anchors.fill: parent; color: '#80000000'; Area { anchors.fill: parent } }", "");
        row("heading", "AbstractButton { width: 70; height: 30; enabled: false; focusPolicy: Qt.NoFocus }", "");
        row("hidden", "AbstractButton { width: 10; height: 10; visible: false } AbstractButton { width: 10; height: 10; opacity: 0 }", "");

        row("small letters", "Words { text: '7.5'; font.pixelSize: 26 }", "Letters: Words \"7.5\": 7.4 pt, at least 8.0");
        row("small entry", "TextInput { text: '8'; width: 90; height: 90; font.pixelSize: 29 }",
                "Letters: TextInput \"8\": 8.2 pt, at least 9.0");
        row("elided", "Words { objectName: 'head'; text: 'Einstellungen der Messung'; width: 90; elide: Text.ElideRight }",
                "Cut: Words head \"Einstellungen der Messung\": is elided");
        row("planned", "Words { text: 'Einstellungen der Messung'; width: 90; elide: Text.ElideRight; property bool mayElide: true }", "");
        row("too wide", "Words { text: 'WWWW'; width: 50 }", "Cut: Words \"WWWW\": is wider than its place by ");
        row("too high", "Words { text: 'W W W'; width: 40; height: 40; wrapMode: Text.Wrap }", "Cut: Words \"W W W\": is higher than its place by ");
        row("outside of its card", "Rectangle { color: 'silver'; width: 50; height: 50; Words { text: 'WWWW' } }",
                "Cut: Words \"WWWW\": is outside of its surface by ");
        row("outside of the window", "Words { text: 'WWWW'; x: 750 }", "Cut: Words \"WWWW\": is outside of its surface by ");
        row("scrolled text", "Flickable { width: 300; height: 20; contentHeight: 300; clip: true; Words { y: 200; text: 'W' } }", "");
        row("beside what scrolls", "Flickable { width: 50; height: 80; contentWidth: 50; contentHeight: 300; Words { text: 'WWWW' } }",
                "Cut: Words \"WWWW\": is outside of its surface by ");
        row("list wider than the window", "Flickable { width: 900; height: 80; contentWidth: 900; contentHeight: 300; Words { x: 790; text: 'WWWW' } }",
                "Cut: Words \"WWWW\": is outside of its surface by ");
        row("closed section", "Item { height: 0; width: 300; clip: true; Words { text: 'W' } }", "");
        row("overlapping texts", "Words { text: 'Attenuation' } Words { x: 40; text: 'dB' }", "Overlap: Words \"Attenuation\": ");
        row("covered text", "Words { text: 'below' } Rectangle { width: 300; height: 90; Words { text: 'above' } }", "");
    }
    void geometry()
    {
        const auto [body, complaint] = currentRow<QByteArray, QString>();
        const QStringList found = complaintsOf(body, ScreenAudit::Geometry);
        // A measure of letters depends on the font.
        if (complaint.endsWith(' '))
            QVERIFY2(found.size() == 1 && found.first().startsWith(complaint), qPrintable(found.join('\n')));
        else
            QCOMPARE(found.join('\n'), complaint);
    }

    void opened_data()
    {
        addColumns<QByteArray, QString>();
        const auto row = [](const char* name, const char* body, const char* complaint) {
            QTest::newRow(name) << QByteArray(body) << QString(complaint);
        };
        const char* const box = "ComboBox { objectName: 'mode'; width: 200; height: 90; model: ['A', 'B']; delegate: Item {}\n"
                                "popup: Sheet { y: %1; contentItem: Item { Area { width: %2 } } } }";
        const auto boxRow = [&](const char* name, const char* y, const char* width, const char* complaint) {
            row(name, QByteArray(box).replace("%1", y).replace("%2", width), complaint);
        };
        boxRow("list below its field", "90", "90", "");
        boxRow("fault of a list", "90", "70",
                "Target: Area: 7.0 x 9.0 mm, at least 9.0 (opened by ComboBox mode)");
        boxRow("list over its field", "60", "90",
                "Covered: ComboBox mode: 200.0 x 30.0 pixels by what opens for it (opened by ComboBox mode)");
        // The page has faults of its own, which are not told for each list again.
        row("page under a list", "AbstractButton { y: 300; width: 10; height: 10 } Words { text: 'a' } Words { text: 'b' }\n"
                "Field { y: 100; function openPad() { pad.open() } } Sheet { id: pad; y: 200; contentItem: Item { Words { text: 'c' } } }", "");
        row("pad over its field", "Item { property bool hasPad: true; function openPad() { pad.open() } Input { objectName: 'count' } }\n"
                "Sheet { id: pad; x: 250 }", "Covered: Input count \"7\": 50.0 x 90.0 pixels by what opens for it (opened by Item)");
        row("dialog that shows what it is about", "Item { function openPicker() { dialog.open() } Input {} } Sheet { id: dialog; modal: true; dim: true;\n"
                "Overlay.modal: Rectangle { color: '#80000000' } }", "");
        row("no pad", "Item { property bool hasPad: false; function openPad() {} }", "");
        row("disabled", "Field { enabled: false }", "");
        row("service away", "Item { property bool isReady: false; function openPad() {} }", "");
        row("nothing opens", "Field { objectName: 'count' }", "Opened: Field count \"7\": nothing opens");
        row("one after the other", "Field { function openPad() { one.open() } } Field { y: 100; function openPad() { two.open() } }\n"
                "Sheet { id: one; x: 400 } Sheet { id: two; x: 400; contentItem: Item { Words { text: 'W'; font.pixelSize: 20 } } }",
                "Letters: Words \"W\": 5.7 pt, at least 8.0 (opened by Field \"7\")");
    }
    void opened()
    {
        const auto [body, complaint] = currentRow<QByteArray, QString>();
        QCOMPARE(complaintsOf(body, ScreenAudit::Geometry, Opened).join('\n'), complaint);
    }

    void contrast_data()
    {
        addColumns<QByteArray, QString>();
        const auto row = [](const char* name, const char* body, const char* complaint) {
            QTest::newRow(name) << QByteArray(body) << QString(complaint);
        };
        row("grey", "Words { text: 'W'; color: '#767676' }", "");
        row("light grey", "Words { text: 'W'; color: '#787878' }", "Contrast: Words \"W\": #787878 on #ffffff has 4.42 : 1, at least 4.5");
        row("disabled", "Words { text: 'W'; color: '#949494'; enabled: false }", "");
        row("faint disabled", "Words { text: 'W'; color: '#969696'; enabled: false }",
                "Contrast: Words \"W\": #969696 on #ffffff has 2.96 : 1, at least 3.0");
        row("opacity", "Words { text: 'W'; opacity: 0.5 }", "Contrast: Words \"W\": #000000 on #ffffff has 3.98 : 1, at least 4.5");
        row("own colour", "Words { text: 'W'; color: 'white' }", "Contrast: Words \"W\": #ffffff on #ffffff has 1.00 : 1, at least 4.5");
        row("what is really behind", "Rectangle { color: '#333'; width: 90; height: 90 } Words { text: 'W'; color: '#333' }",
                "Contrast: Words \"W\": #333333 on #333333 has 1.00 : 1, at least 4.5");
        row("scrolled", "Flickable { width: 300; height: 100; contentHeight: 900; clip: true; Words { y: 800; text: 'W'; color: 'silver' } }",
                "Contrast: Words \"W\": #c0c0c0 on #ffffff has 1.82 : 1, at least 4.5");
    }
    void contrast()
    {
        const auto [body, complaint] = currentRow<QByteArray, QString>();
        QCOMPARE(complaintsOf(body, ScreenAudit::Contrast).join('\n'), complaint);
    }

    void voice_data()
    {
        addColumns<QByteArray, QString>();
        const auto row = [](const char* name, const char* body, const char* complaint) {
            QTest::newRow(name) << QByteArray(body) << QString(complaint);
        };
        row("said", "Words { text: '3.7 dB'; Accessible.role: Accessible.StaticText; Accessible.name: text }", "");
        row("unsaid", "Words { objectName: 'loss'; text: '3.7 dB' }", "Voice: Words loss \"3.7 dB\": no screen reader says it");
        row("another figure", "Words { text: '7' } Item { Accessible.role: Accessible.StaticText; Accessible.name: '3.70 dB' }",
                "Voice: Words \"7\": no screen reader says it");
        row("by its button", "AbstractButton { width: 90; height: 90; Accessible.name: 'Start the test'; Words { text: 'Start' } }", "");
        row("hidden voice", "Words { text: 'dB' } Item { visible: false; Accessible.role: Accessible.StaticText; Accessible.name: 'dB' }",
                "Voice: Words \"dB\": no screen reader says it");
        row("only a sign", "Words { text: '\u00d7' } Words { text: 'i' }", "");
    }
    void voice()
    {
        const auto [body, complaint] = currentRow<QByteArray, QString>();
        QCOMPARE(complaintsOf(body, ScreenAudit::Voice).join('\n'), complaint);
    }
};

QTEST_MAIN(RulesTest)
#include "tst_rules.moc"
