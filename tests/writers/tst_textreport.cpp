#include "columns.h"
#include "golden.h"

#include "base/plaintext_p.h"
#include "writers/text/textreport.h"

#include <embedded/embeddedbackend.h>

#include <algorithm>
#include <memory>
#include <utility>

using namespace uiutils;

Q_DECLARE_METATYPE(uiutils::TextLayout)

class TextReportTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<kiv::embedded::EmbeddedBackend> m_backend;

    /// The lines of a report after its title.
    static QString textOf(const QJsonObject& document)
    {
        const QTemporaryDir folder;
        ReportTemplate report;
        report.readFile(writeFile(folder.filePath("document.json"), QJsonDocument(document).toJson(QJsonDocument::Compact)));
        TextLayout layout;
        layout.showSoftwareRevs = layout.showHardwareRevs = false;
        return reportText(report, layout).section('\n', 4);
    }

    /// A document of one table; in a cell's text the status follows "!".
    static QJsonObject tableOf(const QStringList& labels, const QVector<QStringList>& rows)
    {
        QJsonObject table {{"num_columns", labels.size()}};
        for (int i = 0; i < labels.size(); ++i)
            table["col_label_" + QString::number(i)] = labels.at(i);
        for (int i = 0; i < rows.size(); ++i) {
            QJsonObject row;
            for (int j = 0; j < rows.at(i).size(); ++j) {
                const QStringList parts = rows.at(i).at(j).split('!');
                row["cell_" + QString::number(j)] = QJsonObject {{"label", parts.at(0)}, {"attr_status", parts.value(1)}};
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
        addColumns<QString, QString, TextLayout>();
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
        for (const char* document : {"twelve-rows", "eleven-tables", "hostile", "odd-keys", "tables", "field"})
            QTest::newRow(document) << document << document << noSystem;
        QTest::newRow("defaults") << QString("empty") << QString("empty") << TextLayout();
        QTest::newRow("everything on") << QString("everything") << QString("everything") << all;
        TextLayout ofWidth = noSystem;
        ofWidth.width = 24;
        QTest::newRow("wrapped tables") << QString("tables") << QString("tables-narrow") << ofWidth;
        ofWidth.width = -5;
        QTest::newRow("tables as narrow as may be") << QString("tables") << QString("tables-narrowest") << ofWidth;
        QTest::newRow("narrow") << QString("field") << QString("field-narrow") << narrow;
    }
    void goldens()
    {
        const auto [document, golden, layout] = currentRow<QString, QString, TextLayout>();
        ReportTemplate report;
        readDocument(report, document);
        const QString text = reportText(report, layout);
        const QString difference = goldenDifference(UIUTILS_TEST_DATA_DIR "/text/" + golden + ".txt", text.toUtf8());
        QVERIFY2(difference.isEmpty(), qPrintable(difference));
        const QStringList lines = text.split('\n');
        for (const QString& line : lines) {
            QVERIFY2(displayWidth(line) <= qMax(20, layout.width), qPrintable(line));
            QVERIFY2(!line.endsWith(' '), qPrintable(line));
        }
    }

    /// Columns as terminals show them, without the letters about which editions of Unicode disagree.
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
        addColumns<QStringList, Rows, int>();
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
    /// Time is bounded by the test's own limit: an algorithm that is not linear would take hours.
    void hostile()
    {
        const auto [labels, rows, mostCharacters] = currentRow<QStringList, QVector<QStringList>, int>();
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
        QCOMPARE(reportJson(ReportTemplate()), QString("{\n}\n"));
    }
};

QTEST_GUILESS_MAIN(TextReportTest)
#include "tst_textreport.moc"
