#include "document/reporttemplate.h"
#include "jsonschema_p.h"

#include <QtTest>

using kiv::embedded::schemaViolation;

/// The published schema and the builder agree about the document.
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

    void otherRowsDoNot()
    {
        const std::pair<const char*, const char*> rows[] {
                {R"({"label": "", "cell_0": {}})", "/cell_0: "},
                {R"({"label": "", "cell_0": {"label": ""}, "cell_1": {}})", "/cell_1: "},
                {R"({"label": "", "cell_0": {}, "cell_1": {"label": ""}})", "/cell_0: "},
                {R"({"label": "", "cell_01": 1})", "/cell_01: "},
                // An attribute of the element itself is checked, and hides no other key.
                {R"({"label": "", "cell_0": {"label": "", "attr_unit": 1}})", "/cell_0/attr_unit: "},
                {R"({"label": "", "cell_0": {"label": "", "attr_unit": "", "title": 1}})", "/cell_0/title: "},
                {"{}", ": "},
                {R"({"label": "", "cell_0": {"label": "", "attr_status": "17"}})", "/cell_0/attr_status: "},
                {R"({"label": "", "cell_x": 1, "note": 2, "cell_0": {"label": "", "x": 3}})", ""}};
        for (const auto& [row, place] : rows) {
            const QJsonObject table {{"node_type", "table"}, {"tag", ""}, {"title", ""}, {"use_row_labels", true},
                    {"num_columns", 1}, {"row_1", QJsonDocument::fromJson(row).object()}};
            const QString found = schemaViolation(m_schema, {{"node_type", "report"}, {"tag", ""}, {"table_0", table}});
            const QString start = "/table_0/row_1" + QString(place);
            QVERIFY2(*place ? found.startsWith(start) : found.isEmpty(), qPrintable(row + (": " + found)));
        }
    }
};

QTEST_GUILESS_MAIN(DocumentSchemaTest)
#include "tst_documentschema.moc"
