#include "columns.h"
#include "golden.h"
#include "randomdocument.h"

#include "base/paths_p.h"
#include "writers/html/htmlstreamwriter.h"
#include "writers/pages/reporttable.h"
#include "writers/html/templatetohtmlwriter.h"

#include <embedded/embeddedbackend.h>

#include <memory>

namespace {

int syncs = 0;

/// tidy's error for a page that it rejects; empty for an accepted one.
QString tidyErrors(const QString& html)
{
    const QString said = outputOf("tidy", {"-q", "-e", "-utf8"}, html.toUtf8());
    return said.startsWith("status") && !said.startsWith("status 1\n") ? said.left(2000) : QString();
}

/// The names of all elements and the text of the page, read as XML.
struct ParsedPage
{
    explicit ParsedPage(const QString& html)
    {
        QXmlStreamReader reader(html);
        while (!reader.atEnd()) {
            reader.readNext();
            if (reader.isStartElement()) {
                elements += reader.name().toString();
                for (const QXmlStreamAttribute& attribute : reader.attributes())
                    attributeNames += attribute.name().toString();
            } else if (reader.isCharacters()) {
                text += reader.text();
            }
        }
        error = reader.errorString();
    }

    QStringList elements;
    QStringList attributeNames;
    QString text;
    QString error;
};

/// Today's date and time are the only part of the page that differs from run to run.
QString withoutTimestamp(QString html)
{
    static const QRegularExpression timestamp(
            "[A-Z][a-z]{2} [A-Z][a-z]{2} [ 0-9]?[0-9] [0-9]{4} [0-9]{2}:[0-9]{2}:[0-9]{2}");
    return html.replace(timestamp, "TIMESTAMP");
}

QString pageOf(const ReportTemplate& report, const QVariantMap& attributes = {})
{
    TemplateToHtmlWriter writer(report, nullptr);
    for (auto it = attributes.cbegin(); it != attributes.cend(); ++it)
        writer.setAttribute(it.key(), it.value());
    return writer.getHtml();
}

QStringList texts(const QVector<ReportTable::Cell>& cells)
{
    QStringList texts;
    for (const ReportTable::Cell& cell : cells)
        texts += cell.text;
    return texts;
}

} // namespace

/// Replaces the system's function in this process.
extern "C" int fsync(int) noexcept
{
    ++syncs;
    return 0;
}

class HtmlWriterTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_root;
    std::unique_ptr<kiv::embedded::EmbeddedBackend> m_backend;

    QString iconFile(const QString& status) const
    {
        return m_root.filePath("base/qml/common/images/" + status + "_icon.png");
    }

private Q_SLOTS:
    void init()
    {
        qputenv("UIUTILS_ROOT", m_root.path().toLocal8Bit());
        QVERIFY(QDir(m_root.path()).mkpath("tmp"));
        for (const char* status : {"pass", "marginal", "fail"})
            writeFile(iconFile(status), status);
        m_backend = std::make_unique<kiv::embedded::EmbeddedBackend>();
        QCOMPARE(m_backend->loadFolders({UIUTILS_TEST_DATA_DIR "/services"}), QStringList());
    }
    void cleanup()
    {
        m_backend.reset();
        qDeleteAll(uiutils::sharedReportItems());
        uiutils::sharedReportItems().clear();
    }

    void goldens_data()
    {
        addColumns<QString, QString, QVariantMap>();
        const QVariantMap noSystem {{"showSoftwareRevs", false}, {"showHardwareRevs", false}};
        QTest::newRow("twelve rows") << "twelve-rows" << "twelve-rows" << noSystem;
        QTest::newRow("eleven tables") << "eleven-tables" << "eleven-tables" << noSystem;
        QTest::newRow("defaults") << "empty" << "empty" << QVariantMap();
        QTest::newRow("hostile") << "hostile" << "hostile" << noSystem;
        QTest::newRow("odd keys") << "odd-keys" << "odd-keys" << noSystem;
        QTest::newRow("everything on") << "everything" << "everything"
                                       << QVariantMap {{"includeJobInfo", true}, {"includeCustomerInfoTop", true},
                                                  {"includeTechnicianInfoTop", true}, {"includeCustomerInfoEnd", true},
                                                  {"includeTechnicianInfoEnd", true}, {"marginal", true},
                                                  {"fail", true}, {"title", "Set by the caller"}, {"logo", ""}};
        QTest::newRow("for pages") << "everything" << "everything-pdf"
                                   << QVariantMap {{"isForPDF", true}, {"includeJobInfo", true},
                                              {"includeCustomerInfoTop", true}, {"includeTechnicianInfoTop", true},
                                              {"pass", true}, {"showHardwareRevs", false}};
    }
    void goldens()
    {
        const auto [document, golden, attributes] = currentRow<QString, QString, QVariantMap>();
        ReportTemplate report;
        readDocument(report, document);
        const QString html = pageOf(report, attributes);

        const QString difference = goldenDifference(
                UIUTILS_TEST_DATA_DIR "/html/" + golden + ".html", withoutTimestamp(html).toUtf8());
        QVERIFY2(difference.isEmpty(), qPrintable(difference));
        QCOMPARE(tidyErrors(html), QString());
        QCOMPARE(ParsedPage(html).error, QString());
    }

    void status()
    {
        const std::tuple<QVariantMap, const char*, const char*> rows[] {{{}, "unknown", ""}, {{{"pass", false}}, "unknown", ""},
                {{{"fail", true}, {"pass", true}}, "pass", "pass"}, {{{"marginal", true}}, "marginal", "marginal"},
                {{{"fail", "true"}}, "fail", "fail"}, {{{"notCompleted", true}}, "not completed", ""}};
        for (const auto& [flags, word, icon] : rows) {
            const QString html = pageOf(ReportTemplate(), flags);
            QVERIFY2(html.contains(QString("<!--report_status=%1-->").arg(word)), word);
            QCOMPARE(html.contains("Overall Status"), word != QString("unknown"));
            QCOMPARE(html.contains("data:image/png;base64," + QByteArray(icon).toBase64() + "\""), *icon != 0);
        }
    }

    void margins()
    {
        const char* const margins[][2] = {{"", "0px"}, {"10", "-10px"}, {"1", "auto"}, {"1em", "0px"}};
        for (const auto& [step, margin] : margins) {
            ReportTemplate report;
            report.beginReport("r");
            report.setKey("indent_pix", step);
            report.endReport();
            QVERIFY2(pageOf(report, {{"indent_pix", "77"}}).contains(QString("<table style=\"margin-left:%1\"").arg(margin)), step);
        }
    }

    void bodyAttributes()
    {
        TemplateToHtmlWriter writer(ReportTemplate(), nullptr);
        writer.setBodyAttributes({{"class", "a \"b\" <c>"}, {"x onload=", "evil"}, {"id", 7}});
        const QString html = writer.getHtml();
        QVERIFY2(html.contains("<body class=\"a &quot;b&quot; &lt;c&gt;\" id=\"7\">"), qPrintable(html));
        QCOMPARE(writer.getHtml(), html);
    }

    void cellsKeepToTheirRow()
    {
        QList<ReportItem*> items;
        {
            HtmlStreamWriter html(0, &items);
            html.startBody({});
            html.writeCell("before any table");
            html.startTable("T", {"A", "B"}, true, 0);
            html.writeHeaderCell("label", uiutils::Alignment::Right);
            html.writeCell("a", uiutils::Status::Fail, uiutils::Alignment::Left);
            html.writeCell("b");
            html.writeCell("surplus");
            html.endRow();
            html.writeCell("between rows");
            html.startRow();
            html.endRow();
            html.startRow();
            html.writeEmptyCells(7);
            html.endTable();
            html.writeCell("behind the table");
            html.writeEndDocument();

            const ParsedPage page(html.output());
            QCOMPARE(page.error, QString());
            QCOMPARE(page.elements.count("tr"), 4);
            QCOMPARE(page.text.simplified(), QString("T A B label a b"));
        }
        QCOMPARE(items.size(), 1);
        const auto* table = dynamic_cast<ReportTable*>(items.first());
        QVERIFY(table);
        QCOMPARE(table->title(), QString("T"));
        QCOMPARE(table->columnLabels(), (QStringList {"A", "B"}));
        QCOMPARE(table->columnCount(), 3);
        QCOMPARE(table->rowCount(), 2);
        QCOMPARE(texts(table->row(0)), (QStringList {"label", "a", "b"}));
        QVERIFY(table->row(0).at(0).kind == ReportTable::CellKind::RowLabel);
        QCOMPARE(table->row(0).at(1).status, 64);
        QCOMPARE(int(table->row(0).at(1).alignment), 1);
        QCOMPARE(int(table->row(1).at(0).columnSpan), 3);
        qDeleteAll(items);
    }

    /// Each pass removes what an earlier one created, and nothing else.
    void everyTableBecomesAnItem()
    {
        ReportTemplate report;
        readDocument(report, "eleven-tables");
        const auto titlesAfter = [&](QList<ReportItem*>* items) {
            TemplateToHtmlWriter(report, items).getHtml();
            QStringList titles;
            for (ReportItem* item : qAsConst(*items)) {
                if (const auto* table = dynamic_cast<ReportTable*>(item))
                    titles += table->title();
            }
            return titles;
        };
        const QStringList expected {"Test Information", "Channel 0", "Channel 1", "Channel 10", "Channel 2",
                "Channel 3", "Channel 4", "Channel 5", "Channel 6", "Channel 7", "Channel 8", "Channel 9",
                "Software Revisions", "Hardware"};
        QList<ReportItem*> own {new ReportTable("Ours", {}, false)};
        QCOMPARE(titlesAfter(&own), QStringList("Ours") + expected);
        QCOMPARE(titlesAfter(&own), QStringList("Ours") + expected);
        qDeleteAll(own);

        // A page that an application is writing is continued; one that it gave up is removed.
        HtmlStreamWriter(0).startTable("Given up", {"A"}, false, 0);
        HtmlStreamWriter open(0);
        open.startTable("Never closed", {"A"}, false, 0);
        open.startTable("Open", {"A"}, false, 0);
        QCOMPARE(titlesAfter(&uiutils::sharedReportItems()), QStringList("Open") + expected);
        open.writeCell("cell");
        open.endTable();
        QCOMPARE(titlesAfter(&uiutils::sharedReportItems()), expected);
    }

    /// The item of a table reads its rows from the document, which it keeps; those of a table of many columns are stored.
    void itemsShowTheDocument_data()
    {
        QTest::addColumn<int>("columns");
        QTest::newRow("read") << 3;
        QTest::newRow("stored") << 9;
    }
    void itemsShowTheDocument()
    {
        QFETCH(int, columns);
        const QString document = R"({"table_1": {"title": "A", "num_columns": %1, "use_row_labels": true,
            "row_2": {"label": "two", "cell_0": {"label": 7, "attr_status": "64", "attr_align": "2"}, "cell_1": {"label": "EMPTY"}},
            "row_10": {"label": "EMPTY", "cell_2": {"label": "ten", "attr_align": "-5"}},
            "row_1": {"cell_0": "no cell"}, "row_3": "no row", "a_row_4": {"label": "no row"}},
            "table_2": {"title": "B", "num_columns": 0, "row_1": {}}})";
        const QString path = writeFile(m_root.filePath("rows.json"), document.arg(columns).toUtf8());
        const auto cells = [](const ReportTable& table, int row) {
            QStringList texts;
            for (const ReportTable::Cell& cell : table.row(row))
                texts += QString("%1 %2 %3 %4 %5").arg(cell.text).arg(cell.status).arg(cell.alignment)
                                 .arg(int(cell.kind)).arg(cell.columnSpan);
            return texts;
        };
        for (const bool keepsText : {true, false}) {
            QList<ReportItem*> items;
            {
                ReportTemplate report;
                report.readFile(path);
                TemplateToHtmlWriter writer(report, &items);
                keepsText ? void(writer.getHtml()) : writer.collectItems();
            }
            QVector<ReportTable*> tables;
            for (ReportItem* item : qAsConst(items)) {
                if (auto* table = dynamic_cast<ReportTable*>(item); table && table->title().size() == 1)
                    tables += table;
            }
            QCOMPARE(tables.size(), 2);
            QCOMPARE(tables.at(1)->rowCount(), 0);
            ReportTable& table = *tables.at(0);
            QCOMPARE(table.rowCount(), 3);
            QCOMPARE(cells(table, 0), (QStringList {" 0 2 1 1", QString(" 0 0 0 %1").arg(columns)}));
            const QStringList ten {" 0 2 1 1", " 0 0 0 2", "ten 0 0 0 1"};
            QCOMPARE(cells(table, 1).mid(0, 3), ten);
            QCOMPARE(cells(table, 2), (QStringList {"two 0 2 1 1", "7 64 2 0 1", " 0 -1 0 1", QString(" 0 0 0 %1").arg(columns - 2)}));
            QCOMPARE(table.cellAt(1, 3)->text, QString("ten"));
            QCOMPARE(table.cellAt(2, 1)->text, QString("7"));
            QVERIFY(table.cellAt(2, 2) && table.cellAt(2, 3) && !table.cellAt(0, 2) && !table.cellAt(1, 2));

            table.appendCell({"of the application"});
            table.endRow();
            QCOMPARE(table.rowCount(), 4);
            QCOMPARE(cells(table, 1).mid(0, 3), ten);
            QCOMPARE(table.cellAt(3, 0)->text, QString("of the application"));
            QVERIFY(!table.cellAt(1, 2));
            qDeleteAll(items);
        }
    }

    /// A table may claim many more columns than it fills, and have keys that are not rows.
    void columnsAreLaidOutForFilledCellsOnly()
    {
        ReportTemplate report;
        report.beginReport("r");
        report.beginTable("t", "T");
        report.setKey("num_columns", 1000);
        for (int i = 0; i < 2000; ++i)
            report.addRow("t", "R", i, {});
        for (int i = 0; i < 40'000; ++i)
            report.setKey(QString::number(i), "x");
        report.endTable();
        report.endReport();
        const QString html = pageOf(report);
        QVERIFY2(html.capacity() < 3 * html.size(), qPrintable(QString::number(html.capacity())));
    }

    /// A file has the number of its table, the last of several sections; tables of one service share a picture. The
    /// files are not synced, are not links, and at most a hundred stay.
    void plotsOfAPage()
    {
        ReportTemplate report;
        report.beginReport("r");
        QStringList many {"none"};
        for (int i = 0; i < 100; ++i)
            many += "plots";
        for (const QStringList& services : {QStringList {"plots", "kinds", "plots"}, many + QStringList("missing")}) {
            report.beginSection("s", "S");
            for (const QString& service : services) {
                report.beginTable("t", "T");
                report.setKey("label", service == "none" ? "" : "plot");
                report.setKey("service", service);
                report.endTable();
            }
            report.endSection();
        }
        report.endReport();
        const QDir folder(m_root.filePath("tmp"));
        const QString other = writeFile(m_root.filePath("other"), "kept");
        QVERIFY(QFile::link(other, folder.filePath("rep_plot_1.png")));
        syncs = 0;
        const QString html = pageOf(report);

        QCOMPARE(syncs, 0);
        QCOMPARE(contentsOf(other), QByteArray("kept"));
        const QStringList names = folder.entryList({"rep_plot_*"}, QDir::Files);
        QCOMPARE(names.size(), 100);
        QVERIFY(names.contains("rep_plot_99.png") && names.contains("rep_plot_0.png"));
        QStringList pictures;
        static const QRegularExpression picture("<p>\\s*<img src=\"data:image/png;base64,([^\"]*)\"");
        for (auto it = picture.globalMatch(html); it.hasNext();)
            pictures += it.next().captured(1);
        QCOMPARE(pictures.size(), 104);
        QVERIFY(pictures.at(0) != pictures.at(1));
        QCOMPARE(pictures.count(pictures.at(0)), 102);
        for (const QString& name : names)
            QCOMPARE(QString(contentsOf(folder.filePath(name)).toBase64()), pictures.at(0));
    }

    void iconsAreReadOnce()
    {
        HtmlStreamWriter html(0, nullptr);
        html.startBody({});
        html.startTable("T", {"A"}, false, 0);
        html.writeCell("1", uiutils::Status::Fail);
        html.endRow();
        QVERIFY(QFile::remove(iconFile("fail")));
        html.startRow();
        html.writeCell("2", uiutils::Status::Fail);
        html.endTable();
        QCOMPARE(html.output().count("base64," + QByteArray("fail").toBase64() + "\""), 2);
    }

    void unreadableIconsGiveAnEmptyImage()
    {
        QVERIFY(QFile::remove(iconFile("fail")));
        QVERIFY(QDir().mkdir(iconFile("fail")));
        QVERIFY(QFile::resize(iconFile("pass"), 2'000'000));
        for (const char* flag : {"pass", "fail"})
            QVERIFY(pageOf(ReportTemplate(), {{flag, true}}).contains("\"data:image/png;base64,\""));
        QVERIFY(QDir().rmdir(iconFile("fail")));
    }

    void withoutAPlatform()
    {
        m_backend.reset();
        ReportTemplate report;
        readDocument(report, "everything");
        const QString html = pageOf(report,
                {{"includeJobInfo", true}, {"includeCustomerInfoTop", true}, {"includeTechnicianInfoEnd", true}});
        QVERIFY(html.contains("Solvant System Information"));
        QVERIFY(!html.contains("Job Manager Information"));
        QVERIFY(!html.contains("Customer Information"));
        QVERIFY(!html.contains("Software Revisions"));
        QVERIFY(!html.contains("Configuration Values"));
        QCOMPARE(tidyErrors(html), QString());
    }

    /// Whatever the texts contain, they stay text: the page gets no elements from them.
    void textsStayText()
    {
        const QSet<QString> allowed {"html", "head", "title", "style", "meta", "body", "img", "table", "tr", "th", "td", "i", "b",
                "h1", "h2", "h3", "h4", "p"};
        const QSet<QString> allowedAttributes {"type", "http-equiv", "content", "src", "style", "cellpadding", "rules", "frame",
                "colspan", "align"};
        for (quint32 seed = 0; seed < 200; ++seed) {
            ReportTemplate report;
            RandomDocument(seed).readInto(report);
            const QString html = pageOf(report);
            const ParsedPage page(html);
            QVERIFY2(page.error.isEmpty(), qPrintable(QString("seed %1: %2").arg(seed).arg(page.error)));
            QSet<QString> others(page.elements.cbegin(), page.elements.cend());
            QCOMPARE(others.subtract(allowed).values().join(' '), QString());
            others = QSet<QString>(page.attributeNames.cbegin(), page.attributeNames.cend());
            QCOMPARE(others.subtract(allowedAttributes).values().join(' '), QString());
            if (seed % 100 == 0)
                QCOMPARE(tidyErrors(html), QString());
        }
    }
};

QTEST_MAIN(HtmlWriterTest)
#include "tst_htmlwriter.moc"
