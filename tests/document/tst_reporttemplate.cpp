#include "columns.h"
#include "files.h"

#include "document/reporttemplate.h"
#include "document/tablerows.h"

#include <kiv/plovjsondocument.h>

#include <malloc.h>

namespace {

/// The document's rules in their plainest form, every count taken by walking the keys: ReportTemplate must agree with
/// them, however it keeps its counts.
class PlainBuilder
{
public:
    void beginReport(const QString& tag) { m_stack.append(QJsonObject {{"node_type", "report"}, {"tag", tag}}); }
    void setKey(const QString& key, const QString& text)
    {
        if (!m_stack.isEmpty())
            m_stack.last().insert(key, text);
    }
    void beginSection(const QString& tag, const QString& title)
    {
        if (!m_stack.isEmpty())
            m_stack.append(QJsonObject {{"node_type", "section"}, {"tag", tag}, {"title", title}});
    }
    void beginTable(const QString& tag, const QString& title)
    {
        if (!m_stack.isEmpty())
            m_stack.append(QJsonObject {{"node_type", "table"}, {"tag", tag}, {"title", title},
                    {"use_row_labels", true}, {"col_label_0", "Value"}, {"num_columns", 1}});
    }
    void addRow(const QString& tag, const QString& label, const QString& text, const QVariantMap& attributes)
    {
        QJsonObject cell {{"label", text}, {"tag", tag}, {"title", label}};
        for (auto it = attributes.cbegin(); it != attributes.cend(); ++it)
            cell.insert("attr_" + it.key(), it.value().toString());
        if (!m_stack.isEmpty() && m_stack.constLast().value("node_type") == "table")
            insertChild("row_", QJsonObject {{"label", label}, {"cell_0", cell}});
    }
    void addAttribute(const QString& key, const QString& text) { setKey("attr_" + key, text); }
    void endTable() { end("table"); }
    void endSection() { end("section"); }
    void end(const QString& type)
    {
        if (m_stack.size() < 2 || m_stack.constLast().value("node_type") != type)
            return;
        const QJsonObject closed = m_stack.takeLast();
        const QJsonValue parent = m_stack.constLast().value("node_type");
        if (parent == "section" || parent == "report")
            insertChild(type + "_", closed);
    }
    void endReport()
    {
        if (!m_stack.isEmpty())
            root = m_stack.takeLast();
    }

    QJsonObject root;

private:
    void insertChild(const QString& family, const QJsonObject& child)
    {
        QJsonObject& parent = m_stack.last();
        const QStringList keys = parent.keys();
        const auto count = std::count_if(
                keys.cbegin(), keys.cend(), [&](const QString& key) { return key.contains(family); });
        parent.insert(family + QString::number(count), child);
    }

    QVector<QJsonObject> m_stack;
};

} // namespace

class ReportTemplateTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void layout()
    {
        ReportTemplate report;
        report.beginReport("otdr");
        report.setKey("title", "Fiber 7");
        report.addAttribute("unit", 3.5);
        report.beginSection("events", "Events");
        report.beginSection("inner", "Inner");
        report.endSection();
        report.beginTable("list", "List");
        report.addRow("loss", "Loss", 0.25, {{"unit", "dB"}, {"status", 16}});
        report.addRow("ok", "Fine", true, {});
        report.endTable();
        report.endSection();
        report.endReport();

        const QJsonObject expected = QJsonDocument::fromJson(R"({
            "node_type": "report", "tag": "otdr", "title": "Fiber 7", "attr_unit": "3.5",
            "section_0": {
                "node_type": "section", "tag": "events", "title": "Events",
                "section_0": { "node_type": "section", "tag": "inner", "title": "Inner" },
                "table_0": {
                    "node_type": "table", "tag": "list", "title": "List",
                    "use_row_labels": true, "col_label_0": "Value", "num_columns": 1,
                    "row_1": { "label": "Loss", "cell_0": { "label": "0.25", "tag": "loss", "title": "Loss",
                        "attr_unit": "dB", "attr_status": "16" } },
                    "row_2": { "label": "Fine", "cell_0": { "label": "true", "tag": "ok", "title": "Fine" } }
                }
            }
        })").object();
        QCOMPARE(report.object(), expected);
        QCOMPARE(QJsonDocument::fromJson(report.toJson().toUtf8()).object(), expected);
        QCOMPARE(report.getAttr("attr_unit"), QVariant("3.5"));
        QVERIFY(!report.getAttr("unit").isValid());
        QCOMPARE(report.getTag(), QString());
    }

    /// Any sequence of calls, sensible or not, gives the result of the plain rules.
    void agreesWithThePlainRules()
    {
        const QStringList keys {"title", "row_1", "row_2", "row_5", "row_10", "row_02", "row_x", "use_row_labels",
                "section_0", "section_1", "x_section_", "table_0", "table_2", "a_table_", "node_type", "tag", "row_-1"};
        const QStringList texts {"x", "report", "section", "table", ""};
        for (quint32 seed = 1; seed <= 60; ++seed) {
            QRandomGenerator random(seed);
            ReportTemplate report;
            PlainBuilder plain;
            const auto both = [&](const auto& call) {
                call(report);
                call(plain);
            };
            for (int step = 0; step < 400; ++step) {
                const QString key = keys.at(random.bounded(keys.size()));
                const QString text = texts.at(random.bounded(texts.size()));
                switch (random.bounded(13)) {
                case 0: both([&](auto& to) { to.beginReport(text); }); break;
                case 1: both([&](auto& to) { to.setKey(key, text); }); break;
                case 2: both([&](auto& to) { to.addAttribute(key, text); }); break;
                case 3: both([&](auto& to) { to.beginSection(text, key); }); break;
                case 4: both([&](auto& to) { to.beginTable(text, key); }); break;
                case 5: both([&](auto& to) { to.endTable(); }); break;
                case 6: both([&](auto& to) { to.endSection(); }); break;
                case 7:
                    if (random.bounded(4) == 0)
                        both([&](auto& to) { to.endReport(); });
                    break;
                default: both([&](auto& to) { to.addRow(text, key, QString::number(step), {{key, text}}); });
                }
                QVERIFY2(report.object() == plain.root, qPrintable(QString("seed %1").arg(seed)));
            }
            for (int open = 0; open < 400; ++open) {
                both([](auto& to) { to.endTable(), to.endSection(), to.endReport(); });
                QVERIFY2(report.object() == plain.root, qPrintable(QString("seed %1").arg(seed)));
            }
        }
    }

    void rowsStayInOrder_data()
    {
        addColumns<int, int, int, QString, QString>();
        QTest::newRow("nine") << 0 << 9 << 0 << "row_1" << "row_9";
        QTest::newRow("ten") << 0 << 10 << 0 << "row_10" << "row_19";
        QTest::newRow("ninety") << 0 << 90 << 0 << "row_10" << "row_99";
        QTest::newRow("more") << 0 << 91 << 0 << "row_100" << "row_190";
        QTest::newRow("thousands") << 0 << 9001 << 0 << "row_10000" << "row_19000";
        QTest::newRow("after others") << 12 << 2 << 0 << "row_10" << "row_23";
        QTest::newRow("before others") << 0 << 90 << 1 << "row_100" << "row_190";
        QTest::newRow("among others") << 3 << 5 << 1 << "row_1" << "row_9";
    }
    /// The order of the calls, of the keys and of the numbers agree, whatever else the table holds.
    void rowsStayInOrder()
    {
        const auto [before, collected, after, first, last] = currentRow<int, int, int, QString, QString>();
        ReportTemplate report;
        uiutils::TableRows rows;
        report.beginReport("r");
        report.beginTable("t", "Table");
        report.setKey("row_count", "own");
        int label = 0;
        const auto add = [&](auto& to, int count) {
            for (int i = 0; i < count; ++i, ++label)
                to.addRow("tag", QString::number(label), label, {{"status", 16}});
        };
        add(report, before);
        add(rows, collected);
        // What a page sets itself takes no row's place.
        report.setKey("row_14", "own");
        report.addRows(&rows);
        add(report, after);
        report.setKey("row_15", "own");
        report.endTable();
        report.endReport();

        const QJsonObject table = report.object().value("table_0").toObject();
        QStringList keys, labels, expected;
        for (auto it = table.begin(); it != table.end(); ++it) {
            if (!it->isObject())
                continue;
            keys += it.key();
            labels += it->toObject().value("label").toString();
            expected += QString::number(expected.size());
            QCOMPARE(it.key().size(), first.size());
        }
        QCOMPARE(labels.size(), label);
        QCOMPARE(labels, expected);
        QCOMPARE(keys.first() + keys.last(), first + last);
        QCOMPARE(table.value(first).toObject(),
                QJsonObject({{"label", "0"}, {"cell_0", QJsonObject {{"label", "0"}, {"tag", "tag"}, {"title", "0"}, {"attr_status", "16"}}}}));
    }

    /// Qt's objects keep room for growth, a quarter of a row's memory, which is given back.
    void memoryOfRows()
    {
        uiutils::TableRows rows;
        const auto heap = [] { return mallinfo2().uordblks; };
        const size_t before = heap();
        for (int i = 0; i < 1000; ++i)
            rows.addRow("tag", "Measurement point 12345", "-123.456 dBm", {{"status", 16}});
        if (before == 0)
            QSKIP("This allocator does not say what it holds.");
        QVERIFY2(heap() - before <= 640 * 1000, qPrintable(QString::number(heap() - before)));
    }

    /// Only a table takes rows, each once; a slot may close it.
    void whoTakesCollectedRows()
    {
        ReportTemplate report;
        uiutils::TableRows rows;
        QSignalSpy told(&rows, &uiutils::TableRows::countChanged);
        rows.addRow("a", "A", 1, {});
        report.addRows(&rows);
        report.beginReport("r");
        report.beginSection("s", "Section");
        report.addRows(&rows);
        QCOMPARE(rows.count(), 1);
        QCOMPARE(told.size(), 1);
        report.beginTable("t", "Table");
        report.addRows(nullptr);
        report.addRows(&rows);
        report.addRows(&rows);
        rows.clear();
        QCOMPARE(rows.count(), 0);
        QCOMPARE(told.size(), 2);
        rows.addRow("b", "B", 2, {});
        connect(&rows, &uiutils::TableRows::countChanged, &report, [&] { report.endTable(); });
        report.addRows(&rows);
        report.endSection();
        report.endReport();
        const QJsonObject section = report.object().value("section_0").toObject();
        QCOMPARE(section.size(), 4);
        const QJsonObject table = section.value("table_0").toObject();
        QCOMPARE(table.value("row_1").toObject().value("label").toString() + table.value("row_2").toObject().value("label").toString(), QString("AB"));
        QCOMPARE(table.size(), 8);
    }

    void builtDocumentsReadBack()
    {
        QTemporaryDir dir;
        ReportTemplate built;
        built.beginReport("otdr");
        built.setKey("title", QString::fromUtf8("Ελλάδα \"<&>\" 中文 \\ \n"));
        built.endReport();

        ReportTemplate read;
        read.readFile(writeFile(dir.filePath("document.json"), built.toJson().toUtf8()));
        QVERIFY2(!read.hasError(), qPrintable(read.errorString()));
        QCOMPARE(read.object(), built.object());
        QCOMPARE(read.getTag(), QString("otdr"));
        QCOMPARE(read.getPath(), dir.filePath("document.json"));

        // Paths are the instrument's.
        const QByteArray before = qgetenv("UIUTILS_ROOT");
        qputenv("UIUTILS_ROOT", QFile::encodeName(dir.path()));
        QVERIFY(QDir(dir.path()).mkdir("cust") && QFile::rename(dir.filePath("document.json"), dir.filePath("cust/a.json")));
        ReportTemplate mapped;
        mapped.readFile("/cust/a.json");
        qputenv("UIUTILS_ROOT", before);
        QCOMPARE(mapped.object(), built.object());
        QCOMPARE(mapped.getPath(), QString("/cust/a.json"));
    }

    void damagedFiles()
    {
        const std::pair<QByteArray, const char*> rows[] {{"", "1:1"}, {"{\"tag\": \"otdr\",\n  \"title\": \"Fi", "2:"},
                {"[1, 2]", "1:1"}, {"{\n\"tag\": \"\xff\xfe\"}", "2:"}, {"{}\n\n x", "3:"},
                {QByteArray(100'000, '['), "1:"}, {QByteArray("{\"tag\": \"a\0b\"", 12), "1:"}};
        for (const auto& [contents, place] : rows) {
            QTemporaryDir dir;
            ReportTemplate report;
            report.readFile(writeFile(dir.filePath("document.json"), "{\"tag\": \"old\"}"));
            QCOMPARE(report.getTag(), QString("old"));
            const QString path = writeFile(dir.filePath("document.json"), contents);
            report.readFile(path);
            QVERIFY(report.hasError());
            QVERIFY2(report.errorString().startsWith(path + ":" + place), qPrintable(report.errorString()));
            QVERIFY(report.object().isEmpty());
            QCOMPARE(report.getTag(), QString());

            report.beginReport("new");
            report.endReport();
            QVERIFY(!report.hasError());
        }
    }

    void filesThatCannotBeRead()
    {
        QTemporaryDir dir;
        ReportTemplate report;
        report.readFile(dir.filePath("missing.json"));
        QVERIFY(report.hasError());
        QVERIFY2(report.errorString().contains("missing.json"), qPrintable(report.errorString()));

        report.readFile(dir.path());
        QVERIFY(report.hasError());
        report.readFile("/dev/zero");
        QVERIFY(report.hasError());

        QFile large(dir.filePath("large.json"));
        QVERIFY(large.open(QIODevice::WriteOnly));
        QVERIFY(large.resize(PlovJsonDocument::maximumFileSize + 1));
        report.readFile(large.fileName());
        QVERIFY2(report.errorString().contains("16 MiB"), qPrintable(report.errorString()));

        const QByteArray lists = QByteArray("[],").repeated(PlovJsonDocument::maximumContainers - 3);
        report.readFile(writeFile(dir.filePath("document.json"), "{\"a\":[" + lists + "[]]}"));
        QCOMPARE(report.errorString(), QString());
        report.readFile(writeFile(dir.filePath("document.json"), "{\"a\":[" + lists + "[],[]]}"));
        QVERIFY2(report.errorString().contains("750000 objects"), qPrintable(report.errorString()));
    }

    /// Sections beyond the maximum depth are left out with their contents, and their ends close nothing else.
    void tooDeepSections()
    {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("1000 sections"));
        ReportTemplate report;
        report.beginReport("deep");
        for (int i = 0; i < 20'000; ++i)
            report.beginSection("s", "S");
        report.beginTable("t", "lost");
        report.addRow("r", "R", 1, {});
        report.endTable();
        for (int i = 0; i < 19'000; ++i)
            report.endSection();
        report.setKey("log_0", "in the deepest");
        report.beginTable("t", "kept");
        report.addRow("r", "R", 1, {});
        report.endTable();
        for (int i = 0; i < 999; ++i)
            report.endSection();
        report.setKey("log_0", "in the first");
        report.endSection();
        report.endReport();

        QCOMPARE(report.object().value("section_0").toObject().value("log_0"), QJsonValue("in the first"));
        QJsonObject node = report.object();
        int depth = 0;
        for (; node.contains("section_0"); ++depth)
            node = node.value("section_0").toObject();
        QCOMPARE(depth, 1000);
        QCOMPARE(node.value("log_0"), QJsonValue("in the deepest"));
        QCOMPARE(node.value("table_0").toObject().value("title"), QJsonValue("kept"));
        QVERIFY(node.value("table_0").toObject().contains("row_1"));
        QTemporaryDir dir;
        ReportTemplate read;
        read.readFile(writeFile(dir.filePath("document.json"), report.toJson().toUtf8()));
        QCOMPARE(read.object(), report.object());
    }

    /// Neither reports that were not ended nor reports that became sections change the maximum depth.
    void depthOfReportsWithinReports()
    {
        ReportTemplate report;
        for (int i = 0; i < 3000; ++i)
            report.beginReport("left open");
        report.beginSection("s", "S");
        report.endSection();
        report.endReport();
        QVERIFY(report.object().contains("section_0"));

        for (int i = 0; i < 20'000; ++i) {
            report.beginReport("r");
            report.setKey("node_type", "section");
        }
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("1000 sections"));
        for (int i = 0; i < 20'000; ++i)
            report.endSection();
        report.endReport();
        QVERIFY(!report.toJson().isEmpty());
    }
};

QTEST_GUILESS_MAIN(ReportTemplateTest)
#include "tst_reporttemplate.moc"
