#include "document/documentreader_p.h"

#include <QJsonDocument>
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

    void aKeyOfTwoFamiliesBelongsToTheFirst_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("family");
        QTest::newRow("row") << "row_table_0" << "row";
        QTest::newRow("table") << "table_row_section_0" << "table";
        QTest::newRow("section") << "section_table_" << "section";
        QTest::newRow("inside") << "my_table_section_1" << "table";
        QTest::newRow("of none") << "tables_rows" << "";
    }
    void aKeyOfTwoFamiliesBelongsToTheFirst()
    {
        QFETCH(QString, key);
        QFETCH(QString, family);
        const TableReader node(QJsonObject {{key, QJsonObject()}});
        QStringList seen;
        node.forEachSection(NodeReader::ByKey, [&](const QJsonObject&) { seen += "section"; });
        node.forEachTable(NodeReader::ByKey, [&](const QString&, const QJsonObject&) { seen += "table"; });
        node.forEachRow(NodeReader::ByKey, [&](const QString&, const QJsonObject&) { seen += "row"; });
        QCOMPARE(seen.join(' '), family);
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

    void enabled_data()
    {
        QTest::addColumn<QByteArray>("node");
        QTest::addColumn<bool>("enabled");
        QTest::newRow("absent") << QByteArray("{}") << true;
        QTest::newRow("true") << QByteArray(R"({"enabled": true})") << true;
        QTest::newRow("false") << QByteArray(R"({"enabled": false})") << false;
        QTest::newRow("text false") << QByteArray(R"({"enabled": "false"})") << false;
        QTest::newRow("text 0") << QByteArray(R"({"enabled": "0"})") << false;
        QTest::newRow("empty text") << QByteArray(R"({"enabled": ""})") << true;
        QTest::newRow("other text") << QByteArray(R"({"enabled": "no"})") << true;
        QTest::newRow("null") << QByteArray(R"({"enabled": null})") << true;
    }
    void enabled()
    {
        QFETCH(QByteArray, node);
        QFETCH(bool, enabled);
        QCOMPARE(NodeReader(json(node)).isEnabled(), enabled);
    }

    void columnCount_data()
    {
        QTest::addColumn<QByteArray>("count");
        QTest::addColumn<int>("columns");
        QTest::newRow("number") << QByteArray("3") << 3;
        QTest::newRow("text as the builder sets it") << QByteArray("\"3\"") << 3;
        QTest::newRow("zero") << QByteArray("0") << 0;
        QTest::newRow("negative") << QByteArray("-4") << 0;
        QTest::newRow("2^31") << QByteArray("2147483648") << TableReader::maximumColumns;
        QTest::newRow("1e300") << QByteArray("1e300") << TableReader::maximumColumns;
        QTest::newRow("word") << QByteArray("\"many\"") << 0;
        QTest::newRow("object") << QByteArray("{}") << 0;
    }
    void columnCount()
    {
        QFETCH(QByteArray, count);
        QFETCH(int, columns);
        const TableReader table(json("{\"a\": \"A\", \"col_label_1\": \"B\", \"col_label_02\": \"no number\", \"col_label_-1\": \"\","
                                     "\"col_label_1000\": \"too far\", \"num_columns\": " + count + "}"));
        QCOMPARE(table.columnCount(), columns);
        QCOMPARE(table.columnLabels().size(), columns);
        if (columns == 3)
            QCOMPARE(table.columnLabels(), (QStringList {"", "B", ""}));
    }

};

QTEST_GUILESS_MAIN(DocumentReaderTest)
#include "tst_documentreader.moc"
