#include "document/reporttemplate.h"
#include "jsonschema_p.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QtTest>

using kiv::embedded::schemaViolation;

/// The published schema and the builder speak of the same document.
class DocumentSchemaTest : public QObject
{
    Q_OBJECT

private:
    QJsonObject m_schema;

private Q_SLOTS:
    void initTestCase()
    {
        QFile file(UIUTILS_SOURCE_DIR "/docs/report-document.schema.json");
        QVERIFY(file.open(QIODevice::ReadOnly));
        m_schema = QJsonDocument::fromJson(file.readAll()).object();
        QVERIFY(!m_schema.isEmpty());
    }

    void builtDocumentsConform()
    {
        ReportTemplate report;
        report.beginReport("otdr");
        report.setKey("title", "Fiber 7");
        report.setKey("indent_pix", 10);
        report.addAttribute("unit", 3.5);
        report.beginTable("direct", "Directly in the report");
        report.endTable();
        for (int section = 0; section < 3; ++section) {
            report.beginSection("outer", "Outer");
            report.setKey("log_0", "A line");
            report.setKey("enabled", true);
            report.beginSection("inner", "Inner");
            report.beginTable("list", "List");
            for (int row = 0; row < 12; ++row)
                report.addRow("loss", "Loss", row * 0.5, {{"status", 16}, {"align", 2}, {"unit", "dB"}});
            report.endTable();
            report.endSection();
            report.endSection();
        }
        report.endReport();
        QCOMPARE(schemaViolation(m_schema, report.object()), QString());
        QVERIFY(schemaViolation(m_schema, {{"tag", "x"}, {"node_type", "table"}}).startsWith("/node_type: "));
    }

    void otherRowsDoNot_data()
    {
        QTest::addColumn<QByteArray>("row");
        QTest::addColumn<QString>("place");
        QTest::newRow("first cell") << QByteArray(R"({"label": "", "cell_0": {}})") << "/cell_0: ";
        QTest::newRow("later cell") << QByteArray(R"({"label": "", "cell_0": {"label": ""}, "cell_1": {}})") << "/cell_1: ";
        QTest::newRow("first cell beside a later one")
                << QByteArray(R"({"label": "", "cell_0": {}, "cell_1": {"label": ""}})") << "/cell_0: ";
        QTest::newRow("cell with a zero in front") << QByteArray(R"({"label": "", "cell_01": 1})") << "/cell_01: ";
        QTest::newRow("attribute of one's own")
                << QByteArray(R"({"label": "", "cell_0": {"label": "", "attr_unit": 1}})") << "/cell_0/attr_unit: ";
        QTest::newRow("title beside an attribute of one's own")
                << QByteArray(R"({"label": "", "cell_0": {"label": "", "attr_unit": "", "title": 1}})") << "/cell_0/title: ";
        QTest::newRow("no label") << QByteArray("{}") << ": ";
        QTest::newRow("unknown status")
                << QByteArray(R"({"label": "", "cell_0": {"label": "", "attr_status": "17"}})") << "/cell_0/attr_status: ";
        QTest::newRow("fine") << QByteArray(R"({"label": "", "cell_x": 1, "note": 2, "cell_0": {"label": "", "x": 3}})") << "";
    }
    void otherRowsDoNot()
    {
        QFETCH(QByteArray, row);
        QFETCH(QString, place);
        const QJsonObject table {{"node_type", "table"}, {"tag", ""}, {"title", ""}, {"use_row_labels", true},
                {"num_columns", 1}, {"row_1", QJsonDocument::fromJson(row).object()}};
        const QString violation
                = schemaViolation(m_schema, {{"node_type", "report"}, {"tag", ""}, {"table_0", table}});
        QVERIFY2(place.isEmpty() ? violation.isEmpty() : violation.startsWith("/table_0/row_1" + place),
                qPrintable(violation));
    }

};

QTEST_GUILESS_MAIN(DocumentSchemaTest)
#include "tst_documentschema.moc"
