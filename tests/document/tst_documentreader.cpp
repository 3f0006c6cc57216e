#include "document/documentreader_p.h"

#include <QtTest>

using namespace uiutils;

namespace {

QJsonObject json(const QByteArray& text)
{
    return QJsonDocument::fromJson(text).object();
}

} // namespace

class DocumentReaderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void childrenComeInOrder()
    {
        const QJsonObject node = json(R"({
            "table_2": {"tag": "2"}, "table_10": {"tag": "10"}, "table_1": {"tag": "1"}, "my_table_": {"tag": "my"},
            "table_3": "no object", "attr_table_": "neither", "section_1": {"tag": "s1"}, "section_0": {"tag": "s0"}
        })");
        QStringList seen;
        const auto see = [&](const QString& key, const QJsonObject& table) { seen += key + "=" + NodeReader(table).tag(); };
        NodeReader(node).forEachTable(NodeReader::ByKey, see);
        QCOMPARE(seen, (QStringList {"my_table_=my", "table_1=1", "table_10=10", "table_2=2"}));
        seen.clear();
        NodeReader(node).forEachTable(NodeReader::ByNumber, see);
        QCOMPARE(seen, (QStringList {"table_1=1", "table_2=2", "table_10=10", "my_table_=my"}));
        seen.clear();
        NodeReader(node).forEachSection(NodeReader::ByKey, [&](const QJsonObject& s) { seen += NodeReader(s).tag(); });
        QCOMPARE(seen, (QStringList {"s0", "s1"}));
    }

    void aKeyOfTwoFamiliesBelongsToTheFirst()
    {
        for (const auto& [key, family] : {std::pair("row_table_0", "row"), std::pair("table_row_section_0", "table"),
                     std::pair("section_table_", "section"), std::pair("my_table_section_1", "table"),
                     std::pair("tables_rows", "")}) {
            const TableReader node(QJsonObject {{key, QJsonObject()}});
            QStringList seen;
            node.forEachSection(NodeReader::ByKey, [&](const QJsonObject&) { seen += "section"; });
            node.forEachTable(NodeReader::ByKey, [&](const QString&, const QJsonObject&) { seen += "table"; });
            node.forEachRow(NodeReader::ByKey, [&](const QString&, const QJsonObject&) { seen += "row"; });
            QCOMPARE(seen.join(' '), QString(family));
        }
    }

    void attributesAndLogEntries()
    {
        const NodeReader node(json(R"({
            "a": "before", "attr_b": "2", "attr_a": 1.5, "attr_": "no name", "attribute": "none",
            "log_1": "second", "log_0": "first", "log_2": "EMPTY", "catalog_1": "none"
        })"));
        QStringList attributes;
        node.forEachAttribute([&](const QString& name, const QString& value) { attributes += name + "=" + value; });
        QCOMPARE(attributes, (QStringList {"=no name", "a=1.5", "b=2"}));
        QStringList entries;
        for (const NodeReader::LogEntry& entry : node.logEntries())
            entries += entry.key + "=" + entry.text;
        QCOMPARE(entries, (QStringList {"log_0=first", "log_1=second", "log_2="}));
    }

    void enabled()
    {
        for (const char* node : {"{}", R"({"enabled": true})", R"({"enabled": ""})", R"({"enabled": "no"})",
                     R"({"enabled": null})"})
            QVERIFY2(NodeReader(json(node)).isEnabled(), node);
        for (const char* node : {R"({"enabled": false})", R"({"enabled": "false"})", R"({"enabled": "0"})"})
            QVERIFY2(!NodeReader(json(node)).isEnabled(), node);
    }

    void columnCount()
    {
        const int most = TableReader::maximumColumns;
        // A text is how the builder sets it.
        const std::pair<const char*, int> rows[] {{"3", 3}, {"\"3\"", 3}, {"0", 0}, {"-4", 0}, {"2147483648", most},
                {"1e300", most}, {"\"many\"", 0}, {"{}", 0}};
        for (const auto& [count, columns] : rows) {
            const TableReader table(json(R"({"a": "A", "col_label_1": "B", "col_label_02": "no number",
                    "col_label_-1": "", "col_label_1000": "too far", "num_columns": )" + QByteArray(count) + "}"));
            QCOMPARE(table.columnCount(), columns);
            QCOMPARE(table.columnLabels().size(), columns);
            if (columns == 3)
                QCOMPARE(table.columnLabels(), (QStringList {"", "B", ""}));
        }
    }
};

QTEST_GUILESS_MAIN(DocumentReaderTest)
#include "tst_documentreader.moc"
