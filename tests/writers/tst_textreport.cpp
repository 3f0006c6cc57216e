#include "columns.h"
#include "files.h"
#include "golden.h"

#include "base/plaintext_p.h"
#include "document/reporttemplate.h"
#include "writers/text/textreport.h"

#include <embedded/embeddedbackend.h>

#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <algorithm>
#include <memory>
#include <utility>

using namespace uiutils;

Q_DECLARE_METATYPE(uiutils::TextLayout)

namespace {

void readDocument(ReportTemplate& report, const QString& path)
{
    report.readFile(path);
    QVERIFY2(!report.hasError(), qPrintable(report.errorString()));
}

} // namespace

class TextReportTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<kiv::embedded::EmbeddedBackend> m_backend;

    /// The lines of a report behind its title.
    static QString textOf(const QJsonObject& document, int width = 80)
    {
        const QTemporaryDir folder;
        ReportTemplate report;
        const QByteArray json = QJsonDocument(document).toJson(QJsonDocument::Compact);
        readDocument(report, writeFile(folder.filePath("document.json"), json));
        TextLayout layout;
        layout.width = width;
        layout.showSoftwareRevs = layout.showHardwareRevs = false;
        return reportText(report, layout).section('\n', 4);
    }

    /// A document of one table; in a cell's text the status stands behind "!" and the alignment behind "@".
    static QJsonObject tableOf(const QStringList& labels, const QVector<QStringList>& rows)
    {
        QJsonObject table {{"num_columns", labels.size()}};
        for (int i = 0; i < labels.size(); ++i)
            table["col_label_" + QString::number(i)] = labels.at(i);
        for (int i = 0; i < rows.size(); ++i) {
            QJsonObject row;
            for (int j = 0; j < rows.at(i).size(); ++j) {
                const QString text = rows.at(i).at(j);
                QJsonObject cell {{"label", text.section(QRegularExpression("[!@]"), 0, 0)}};
                if (text.contains('!'))
                    cell["attr_status"] = text.section('!', 1);
                if (text.contains('@'))
                    cell["attr_align"] = text.section('@', 1);
                row["cell_" + QString::number(j)] = cell;
            }
            table["row_" + QString::number(100'000 + i)] = row;
        }
        return {{"table_0", table}};
    }

private Q_SLOTS:
    void init()
    {
        m_backend = std::make_unique<kiv::embedded::EmbeddedBackend>();
        QCOMPARE(m_backend->loadFolders({UIUTILS_TEST_DATA_DIR "/services"}), QStringList());
    }
    void cleanup() { m_backend.reset(); }

    void goldens_data()
    {
        addColumns<QString, QString, TextLayout>({"document", "golden", "layout"});
        TextLayout noSystem;
        noSystem.showSoftwareRevs = noSystem.showHardwareRevs = false;
        TextLayout all;
        all.title = "Set by the caller";
        all.timestamp = QDateTime({2026, 11, 21}, {9, 5, 7});
        all.status = ReportStatus::Marginal;
        all.includeJobInfo = all.includeCustomerInfoTop = all.includeTechnicianInfoTop = true;
        all.includeCustomerInfoEnd = all.includeTechnicianInfoEnd = true;
        TextLayout narrow = all;
        narrow.width = 40;
        narrow.status = ReportStatus::NotCompleted;
        for (const char* document : {"twelve-rows", "eleven-tables", "hostile", "field"})
            QTest::newRow(document) << document << document << noSystem;
        QTest::newRow("defaults") << "empty"
                                  << "empty" << TextLayout();
        QTest::newRow("everything on") << "everything"
                                       << "everything" << all;
        QTest::newRow("narrow") << "field"
                                << "field-narrow" << narrow;
    }
    void goldens()
    {
        QFETCH(QString, document);
        QFETCH(QString, golden);
        QFETCH(TextLayout, layout);
        ReportTemplate report;
        readDocument(report, UIUTILS_TEST_DATA_DIR "/documents/" + document + ".json");
        const QString text = reportText(report, layout);
        const QString difference = goldenDifference(UIUTILS_TEST_DATA_DIR "/text/" + golden + ".txt", text.toUtf8());
        QVERIFY2(difference.isEmpty(), qPrintable(difference));
        const QStringList lines = text.split('\n');
        for (const QString& line : lines) {
            QVERIFY2(displayWidth(line) <= layout.width, qPrintable(line));
            QVERIFY2(!line.endsWith(' '), qPrintable(line));
        }
    }

    void tables_data()
    {
        using Rows = QVector<QStringList>;
        addColumns<QStringList, Rows, int, QString>({"labels", "rows", "width", "text"});
        const auto add = [](const char* name, const QStringList& labels, const Rows& rows, int width,
                                 const QString& text) { QTest::newRow(name) << labels << rows << width << text; };
        add("numbers stand to the right", {"A", "B", "C"}, {{"1.5", "1.5", "4.2.0"}, {"-12", "x", "1"}}, 80,
                "    A  B    C\n  ---  ---  -----\n  1.5  1.5  4.2.0\n  -12  x    1\n");
        add("units, exponents, grouping", {""}, {{"1,234.5 Mbit/s"}, {"1e-9"}, {"5%"}, {"+3 dB"}}, 80,
                "  1,234.5 Mbit/s\n            1e-9\n              5%\n           +3 dB\n");
        add("no numbers", {"", "", ""}, {{"10.0.0.1", "2026-11-21", "9:05"}, {"1", "2", "3"}}, 80,
                "  10.0.0.1  2026-11-21  9:05\n  1         2           3\n");
        add("as the cells say", {"Label"}, {{"1@1"}, {"a@2"}, {"b@0"}, {"abcdefg@9"}}, 80,
                "  Label\n  -------\n  1\n        a\n     b\n  abcdefg\n");
        add("statuses", {"A", "B"}, {{"1!16", "x"}, {"!64", "y"}, {"22!17", "!32"}}, 80,
                "   A        B\n  --------  -----------\n   1  Pass  x\n      Fail  y\n  22           Marginal\n");
        add("only statuses", {"A", "Long label"}, {{"!16", "!64"}}, 80,
                "  A     Long label\n  ----  ----------\n  Pass        Fail\n");
        add("empty columns and rows are left out", {"", "B", "", "D"}, {{"", "b"}, {"EMPTY"}, {}, {"", "", "", " d\n"}},
                80, "  B  D\n  -  -\n  b\n     d\n");
        add("line breaks and tabs", {"A", "B"}, {{"one\r\ntwo\rthree\u2028four", "a\tb"}}, 80,
                "  A      B\n  -----  ---\n  one    a b\n  two\n  three\n  four\n");
        add("controls", {"A"}, {{QString("a\x1b[2J\u202eb\u2066\u009b\u2069") + QChar(0xd800) + "c"}, {"ab"}}, 80,
                "  A\n  -------\n  a[2Jb\uFFFDc\n  ab\n");
        add("wide letters and marks", {"名"}, {{"東京"}, {"e\u0301\u0301"}, {"😀 x"}}, 80,
                "  名\n  ----\n  東京\n  e\u0301\u0301\n  😀 x\n");
        add("wrapped", {"First", "Second"}, {{"a b", "one two three four five six"}, {"c", "x"}}, 24,
                "  First  Second\n  -----  ---------------\n  a b    one two three\n         four five six\n  c      "
                "x\n");
        add("blanks and breaks where lines end", {"A"}, {{"123456789012345678    "}, {"  abc     defghijklmnopqrs"}, {"a\n\nb"}}, 20,
                "  A\n  ------------------\n  123456789012345678\n  abc\n  defghijklmnopqrs\n  a\n\n  b\n");
        add("a long word is cut", {"A"}, {{"abcdefghijklmnopqrstuvwxyz"}}, 20,
                "  A\n  ------------------\n  abcdefghijklmnopqr\n  stuvwxyz\n");
        add("wide letters are cut between them", {"A"}, {{"東京東京東京東京東京\u0301"}}, 20,
                "  A\n  ------------------\n  東京東京東京東京東\n  京\u0301\n");
        add("stacked", {"Alpha", "", "Gamma"}, {{"one two three", "four five six!64", "seven eight nine"}, {"", "x"}},
                24, "  Alpha: one two three\n  four five six  Fail\n  Gamma: seven eight\n    nine\n\n  x\n");
        add("the narrowest", {"A"}, {{"abcdefghijklmnopqrs"}}, -5,
                "  A\n  ------------------\n  abcdefghijklmnopqr\n  s\n");
    }
    void tables()
    {
        QFETCH(QStringList, labels);
        QFETCH(QVector<QStringList>, rows);
        QFETCH(int, width);
        QTEST(textOf(tableOf(labels, rows), width), "text");
    }

    /// Columns as terminals show them. Letters that editions of Unicode disagree about are not among these.
    void widthsAreThoseOfTheTerminal()
    {
        const std::pair<QString, int> texts[] = {
                {"Aa9ÄßŁΩЖ", 8}, {"µ°±\u00a0\u00ad≥→─█", 9}, {"e\u0301\u0323a\u20dd", 2}, {"a\u200b\u200d\u2060\ufeffb", 2},
                {"\u05e9\u05b8\u0627\u064e", 2}, {"\u0e01\u0e35\u0e48", 1}, {"\u0915\u094d\u0937\u093f", 3},
                {"\u1112\u1161\u11ab\u115f", 4}, {"\uac00\ud55c\ud7a3\ua960\ua97c", 10}, {"あカ、\u3000\u303e\u303f", 11},
                {"Ａ！\uff60\uffe6", 8}, {"\uff61ｶﾟ\uffe8", 4}, {"京\u9fa5\uf900\ufe30", 8}, {"\u2e80\ua48c\ua4d0", 5},
                {"\U00020000\U0002fa1d\U0001b000", 6}, {"😀💾🚀🧿🀄", 10}, {"⌚⚡✅⭐\u2329", 10}, {"☀✈✓⌜⚠\u26a2", 6},
                {"\U0001f3d4\U0001f5a5\U0001f54f", 3}, {"\U0001d400\U00010400", 2}};
        for (const auto& [text, columns] : texts)
            QVERIFY2(displayWidth(text) == columns, qPrintable(text + ": " + QString::number(displayWidth(text))));
    }

    void hostile_data()
    {
        using Rows = QVector<QStringList>;
        addColumns<QStringList, Rows, int>({"labels", "rows", "mostCharacters"});
        const QStringList thousand = QString("x").repeated(1000).split(QString(), Qt::SkipEmptyParts);
        const auto megabyteOf = [](const QString& part) { return part.repeated(1'000'000 / part.size()); };
        const QStringList noLabels = QString(999, ',').split(',');
        QTest::newRow("a thousand columns of many rows") << noLabels << Rows(20'000, {"a"}) << 100'000;
        QTest::newRow("a thousand full columns") << thousand << Rows(50, thousand) << 600'000;
        QTest::newRow("a thousand long labels")
                << QString("long label,").repeated(1000).split(',') << Rows(1000, {"a", "b"}) << 50'000;
        QTest::newRow("a word of a megabyte") << QStringList {"A", "B"} << Rows {{megabyteOf("a"), "b"}} << 1'200'000;
        QTest::newRow("lines") << QStringList {"A", "B"} << Rows {{"a", megabyteOf("\nx")}} << 4'000'000;
        QTest::newRow("blanks") << QStringList {"A"} << Rows {{"a" + megabyteOf(" ") + "b"}} << 1000;
        QTest::newRow("marks") << QStringList {"A"} << Rows {{"a " + megabyteOf("\u0301") + megabyteOf("b")}}
                               << 2'200'000;
        QTest::newRow("surrogates") << QStringList {"A"} << Rows {{megabyteOf(QString(QChar(0xdc00)) + QChar(0xd800))}}
                                    << 1'200'000;
        QTest::newRow("many rows") << QStringList {"A", "B"} << Rows(60'000, {"1", "b!16"}) << 1'200'000;
    }
    /// Time is bounded by the test's own limit: what is not linear would take hours.
    void hostile()
    {
        QFETCH(QStringList, labels);
        QFETCH(QVector<QStringList>, rows);
        QFETCH(int, mostCharacters);
        const QString text = textOf(tableOf(labels, rows));
        QVERIFY(!text.isEmpty());
        QVERIFY2(text.size() <= mostCharacters, qPrintable(QString::number(text.size())));
        QVERIFY(text.endsWith('\n'));
        QCOMPARE(QString::fromUtf8(text.toUtf8()), text);
        const QStringList lines = text.split('\n');
        QVERIFY(std::all_of(lines.begin(), lines.end(), [](const QString& line) { return displayWidth(line) <= 80; }));
    }

    void withoutAPlatform()
    {
        m_backend.reset();
        TextLayout layout;
        layout.includeJobInfo = layout.includeCustomerInfoTop = layout.includeTechnicianInfoEnd = true;
        QCOMPARE(reportText(ReportTemplate(), layout), QString("======\nReport\n======\n"));
    }

    void json()
    {
        ReportTemplate report;
        QCOMPARE(reportJson(report), QString("{\n}\n"));
        report.beginReport(QString("Größe ") + QChar(0xd800));
        report.endReport();
        QCOMPARE(QJsonDocument::fromJson(reportJson(report).toUtf8()).object().size(), 2);
    }
};

QTEST_GUILESS_MAIN(TextReportTest)
#include "tst_textreport.moc"
