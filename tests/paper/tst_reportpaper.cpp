#include "writers/pdfreading.h"

#include "ui_paper/reportpaper.h"
#include "writers/pages/reportheader.h"
#include "writers/pages/reportpdf.h"
#include "writers/pages/reporttable.h"
#include "writers/pages/reporttext.h"

#include <QPainter>
#include <QPrinter>
#include <QTemporaryDir>
#include <QtTest>

using uiutils::ReportPaper;

namespace {

QStringList wordsOf(const QString& text)
{
    QStringList words = text.split(QRegularExpression("\\s+"), Qt::SkipEmptyParts);
    words.sort();
    return words;
}

} // namespace

class ReportPaperTest : public QObject
{
    Q_OBJECT

    QTemporaryDir m_root;
    QList<ReportItem*> m_items;
    ReportPDF m_pages;
    QString m_path;

    void setUp(QPrinter& printer) const
    {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(m_path);
        printer.setPageSize(QPageSize(QPageSize::Letter));
        printer.setPageMargins(QMarginsF(5, 5, 5, 5), QPageLayout::Millimeter);
    }
    /// Which pages came out, as their footers say.
    QString printed() const
    {
        QStringList numbers;
        for (const QString& page : pagesOf(m_path))
            numbers += QRegularExpression("Page (\\d+) of").match(page).captured(1);
        return numbers.join(' ');
    }

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("UIUTILS_ROOT", QFile::encodeName(m_root.path()));
        m_path = m_root.filePath("paper.pdf");
        auto* table = new ReportTable("Measurements", {"Level", "Remark"}, true);
        for (int row = 0; row < 160; ++row) {
            table->appendCell({QString("Point-%1").arg(row), 0, 1, ReportTable::CellKind::RowLabel});
            table->appendCell({QString::number(row * 3)});
            table->appendCell({row % 4 ? "AVAVA" : "\u05e9\u05dc\u05d5\u05dd"});
            table->endRow();
        }
        m_items = {new ReportHeader(1, "Heading"), new ReportText("A paragraph."), table};
        m_pages.setItems(m_items);
        m_pages.setTitle("Title");
    }
    void cleanupTestCase() { qDeleteAll(m_items); }

    /// On the same paper, each page has the words that it has in the file, at the same places.
    void paperHasThePagesOfTheFile()
    {
        const QString file = m_root.filePath("file.pdf");
        QVERIFY(m_pages.print(file));
        QPrinter printer(QPrinter::HighResolution);
        setUp(printer);
        QString error;
        QVERIFY2(ReportPaper().print(m_pages, printer, &error), qPrintable(error));
        const QStringList expected = pagesOf(file), found = pagesOf(m_path);
        QCOMPARE(found.size(), 4);
        QCOMPARE(expected.size(), 4);
        for (int page = 0; page < 4; ++page)
            QCOMPARE(wordsOf(found.at(page)), wordsOf(expected.at(page)));
        const auto boxes = [](const QString& path) {
            QMap<QString, QPointF> places;
            const QString xml = outputOf("pdftotext", {"-bbox", path, "-"});
            auto it = QRegularExpression("xMin=\"([\\d.]+)\" yMin=\"[\\d.]+\" xMax=\"[\\d.]+\" yMax=\"([\\d.]+)\">(Point-\\d+)<").globalMatch(xml);
            while (it.hasNext()) {
                const QRegularExpressionMatch match = it.next();
                places[match.captured(3)] = {match.captured(1).toDouble(), match.captured(2).toDouble()};
            }
            return places;
        };
        const auto places = boxes(m_path), inFile = boxes(file);
        QCOMPARE(places.size(), 160);
        for (auto it = places.begin(); it != places.end(); ++it) {
            const QPointF distance = it.value() - inFile.value(it.key());
            QVERIFY2(qAbs(distance.x()) < 0.3 && qAbs(distance.y()) < 3, qPrintable(it.key()));
        }
    }

    void settingsOfThePrinter_data()
    {
        QTest::addColumn<std::function<void(QPrinter&)>>("set");
        QTest::addColumn<QString>("pages");
        using Set = std::function<void(QPrinter&)>;
        QTest::newRow("range") << Set([](QPrinter& p) { p.setFromTo(2, 3); }) << "2 3";
        QTest::newRow("range beyond the end") << Set([](QPrinter& p) { p.setFromTo(4, 9); }) << "4";
        QTest::newRow("backwards") << Set([](QPrinter& p) { p.setPageOrder(QPrinter::LastPageFirst); }) << "4 3 2 1";
        QTest::newRow("copies") << Set([](QPrinter& p) { p.setFromTo(1, 2), p.setCopyCount(2), p.setCollateCopies(true); }) << "1 2 1 2";
        QTest::newRow("each page twice") << Set([](QPrinter& p) { p.setFromTo(1, 2), p.setCopyCount(2), p.setCollateCopies(false); }) << "1 1 2 2";
        QTest::newRow("other resolution") << Set([](QPrinter& p) { p.setResolution(150); }) << "1 2 3 4";
        QTest::newRow("no margins") << Set([](QPrinter& p) { p.setFullPage(true); }) << "1 2 3 4";
    }
    void settingsOfThePrinter()
    {
        QFETCH(std::function<void(QPrinter&)>, set);
        QPrinter printer;
        setUp(printer);
        set(printer);
        QVector<int> sheets;
        ReportPaper paper;
        connect(&paper, &ReportPaper::progressChanged, [&](int sheet, int count) { sheets += {sheet, count}; });
        QString error;
        QVERIFY2(paper.print(m_pages, printer, &error), qPrintable(error));
        QTEST(printed(), "pages");
        const int count = printed().split(' ').size();
        QCOMPARE(sheets.mid(sheets.size() - 2), QVector<int>({count, count}));
        QCOMPARE(infoOf(m_path, "Page size").left(16), "612 x 792 pts (l");
    }

    void otherPaper()
    {
        QPrinter printer;
        setUp(printer);
        printer.setPageSize(QPageSize(QPageSize::A5));
        printer.setPageOrientation(QPageLayout::Landscape);
        QVERIFY(ReportPaper().print(m_pages, printer));
        QVERIFY(pagesOf(m_path).size() > 4);
        const QString words = outputOf("pdftotext", {"-bbox", m_path, "-"});
        auto it = QRegularExpression("xMax=\"([\\d.]+)\" yMax=\"([\\d.]+)\"").globalMatch(words);
        while (it.hasNext()) {
            const QRegularExpressionMatch match = it.next();
            QVERIFY(match.captured(1).toDouble() < 595 - 40 && match.captured(2).toDouble() < 420 - 26);
        }
    }

    void errorsAndCancel()
    {
        QPrinter printer;
        setUp(printer);
        ReportPaper paper;
        QString error;
        printer.setFromTo(5, 6);
        QVERIFY(!paper.print(m_pages, printer, &error));
        QCOMPARE(error, "the report has no page 5, only 4");
        printer.setFromTo(0, 0);
        printer.setOutputFileName(m_root.filePath("no folder/paper.pdf"));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("Returned false"));
        QVERIFY(!paper.print(m_pages, printer, &error));
        QCOMPARE(error, "the printer cannot be used");

        printer.setOutputFileName(m_path);
        int calls = 0;
        auto connection = connect(&paper, &ReportPaper::progressChanged, [&](int sheet) {
            calls += sheet > 1;
            if (sheet == 1) {
                QString nested;
                QVERIFY(!paper.print(m_pages, printer, &nested));
                QCOMPARE(nested, "another report is being printed");
                paper.cancel();
            }
        });
        QVERIFY(!paper.print(m_pages, printer, &error));
        QCOMPARE(error, QString());
        QCOMPARE(calls, 0);
        disconnect(connection);
        QVERIFY(paper.print(m_pages, printer, &error));
        QCOMPARE(printed(), "1 2 3 4");

        auto* deleted = new ReportPaper;
        connect(deleted, &ReportPaper::progressChanged, [&](int sheet) { sheet == 2 ? delete deleted : void(); });
        QVERIFY(!deleted->print(m_pages, printer, &error));
        QCOMPARE(error, QString());
    }
};

Q_DECLARE_METATYPE(std::function<void(QPrinter&)>)
QTEST_MAIN(ReportPaperTest)
#include "tst_reportpaper.moc"
