#include "naturalwidth.h"

#include <QFontMetricsF>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using uiutils::NaturalWidth;

namespace {

QFont fontOf(int pixels)
{
    QFont font;
    font.setPixelSize(pixels);
    return font;
}

} // namespace

class NaturalWidthTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// Enough for the text, not enough for a letter more, and nothing for none.
    void fits()
    {
        NaturalWidth width;
        QCOMPARE(width.oneLine(), 0);
        width.setFont(fontOf(20));
        QCOMPARE(width.oneLine(), 0);
        const QString text = "Round-trip time";
        width.setText(text);
        const QFontMetricsF metrics(fontOf(20));
        QVERIFY(width.oneLine() >= metrics.horizontalAdvance(text));
        QVERIFY(width.oneLine() < metrics.horizontalAdvance(text + "m"));
        // What stands out on both sides of its place.
        QFont slanted = fontOf(60);
        slanted.setItalic(true);
        width.setFont(slanted);
        width.setText("f");
        QVERIFY(width.oneLine() >= QFontMetricsF(slanted).boundingRect("f").width());
    }

    void followsTextAndFont()
    {
        NaturalWidth width;
        width.setText("Apply");
        QSignalSpy changed(&width, &NaturalWidth::oneLineChanged);
        const int before = width.oneLine();
        width.setText("Apply");
        QCOMPARE(changed.count(), 0);
        width.setFont(fontOf(60));
        QVERIFY(width.oneLine() > before);
        QCOMPARE(changed.count(), 1);
        QFont underlined = fontOf(60);
        underlined.setUnderline(true);
        width.setFont(underlined);
        QCOMPARE(changed.count(), 1);
        width.setText(QString());
        QCOMPARE(width.oneLine(), 0);
        QCOMPARE(changed.count(), 2);
    }

    /// Only what text and font are in the end is measured.
    void measuredOnce()
    {
        NaturalWidth width;
        QSignalSpy changed(&width, &NaturalWidth::oneLineChanged);
        width.classBegin();
        width.setText("Apply");
        width.setFont(fontOf(60));
        QCOMPARE(changed.count(), 0);
        width.componentComplete();
        QCOMPARE(changed.count(), 1);
        QVERIFY(width.oneLine() > 0);
    }

    /// The object that was made last knows it first.
    void knownBeforeUse()
    {
        qmlRegisterType<NaturalWidth>("Measured", 1, 0, "NaturalWidth");
        QQmlEngine engine;
        QQmlComponent component(&engine);
        component.setData("import QtQuick 2.15\nimport Measured 1.0\n"
                          "QtObject {\n"
                          "    property var seen: []\n"
                          "    property int size: 30\n"
                          "    readonly property QtObject first: QtObject { Component.onCompleted: seen.push('completed') }\n"
                          "    readonly property NaturalWidth natural: NaturalWidth {\n"
                          "        text: 'Discard'; font.pixelSize: size\n"
                          "        onOneLineChanged: seen.push(oneLine)\n"
                          "    }\n"
                          "}",
                QUrl());
        const std::unique_ptr<QObject> page(component.create());
        QVERIFY2(page, qPrintable(component.errorString()));
        NaturalWidth expected;
        expected.setFont(fontOf(30));
        expected.setText("Discard");
        QCOMPARE(page->property("seen").toList(), QVariantList({expected.oneLine(), "completed"}));
        page->setProperty("size", 60);
        expected.setFont(fontOf(60));
        QCOMPARE(page->property("natural").value<NaturalWidth*>()->oneLine(), expected.oneLine());
    }
};

QTEST_MAIN(NaturalWidthTest)
#include "tst_naturalwidth.moc"
