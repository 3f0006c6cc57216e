#include "document/reporttemplate.h"
#include "module/uiutilsmodule.h"

#include <QJsonObject>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QtTest>

#include <memory>

/// The types as a page reaches them: through an import and through the shared library.
class ModuleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { uiutils::registerTypes(); }

    void aPageBuildsAReport()
    {
        QQmlEngine engine;
        QQmlComponent component(&engine);
        component.setData(R"(
            import QtQml 2.15
            import UiUtils 1.0
            ReportTemplate {
                Component.onCompleted: {
                    beginReport("page")
                    setKey("title", "From QML")
                    setKey("number", 12.5)
                    setKey("flag", true)
                    addAttribute("unit", 3.5)
                    beginSection("s", "Section")
                    beginTable("t", "Table")
                    addRow("a", "First", 1, { "unit": "dB", "status": 16 })
                    addRow("b", "Second", "two", {})
                    endTable()
                    endSection()
                    endReport()
                }
                property string text: toJson()
                property bool failed: hasError()
            }
        )", QUrl());
        const std::unique_ptr<QObject> object(component.create());
        QVERIFY2(object, qPrintable(component.errorString()));
        const auto* report = qobject_cast<ReportTemplate*>(object.get());
        QVERIFY(report);

        const QJsonObject root = report->object();
        QCOMPARE(root.value("tag").toString(), QString("page"));
        QCOMPARE(root.value("number").toString(), QString("12.5"));
        QCOMPARE(root.value("flag").toString(), QString("true"));
        QCOMPARE(root.value("attr_unit").toString(), QString("3.5"));
        const QJsonObject table = root.value("section_0").toObject().value("table_0").toObject();
        const QJsonObject cell = table.value("row_1").toObject().value("cell_0").toObject();
        QCOMPARE(cell.value("attr_status").toString(), QString("16"));
        QCOMPARE(cell.value("attr_unit").toString(), QString("dB"));
        QCOMPARE(table.value("row_2").toObject().value("cell_0").toObject().value("label").toString(), QString("two"));
    }
};

QTEST_GUILESS_MAIN(ModuleTest)
#include "tst_module.moc"
