#include "columns.h"
#include "pdfsheets.h"

#include "document/reporttemplate.h"
#include "writers/html/templatetopdfwriter.h"
#include "writers/pages/linebreaks_p.h"
#include "writers/pages/reportheader.h"
#include "writers/pages/reporttable.h"
#include "writers/pages/reporttext.h"

#include <QPainter>
#include <QtTest>

namespace {

bool isSame(qreal a, qreal b)
{
    return qAbs(a - b) < 0.3;
}

} // namespace

/// Whether the reports of shapes.py, and some made here, are pages that one would hand on.
class PageLayoutTest : public QObject
{
    Q_OBJECT

private:
    using Words = QVector<QPair<QString, QRectF>>;

    void print(const QString& shape, const QVariantMap& attributes = {})
    {
        ReportTemplate document;
        document.readFile(m_root.filePath(shape + ".json"));
        QVERIFY2(!document.hasError(), qPrintable(document.errorString()));
        QList<ReportItem*> items;
        TemplateToPdfWriter writer(document, &items);
        for (const char* name : {"showSoftwareRevs", "showHardwareRevs"})
            writer.setAttribute(name, false);
        for (auto it = attributes.cbegin(); it != attributes.cend(); ++it)
            writer.setAttribute(it.key(), it.value());
        QVERIFY(writer.write(m_path));
        qDeleteAll(items);
        check();
    }
    void print(const QList<ReportItem*>& items)
    {
        ReportPDF pdf;
        pdf.setItems(items);
        QVERIFY(pdf.print(m_path));
        qDeleteAll(items);
        check();
    }
    void check()
    {
        m_sheets = sheetsOf(m_path);
        QCOMPARE(faultsOf(m_path), QString());
        QCOMPARE(misplacedIn(m_sheets), QString());
    }

    Words all(const QString& word) const
    {
        Words found;
        for (const Sheet& sheet : m_sheets)
            std::copy_if(sheet.words.begin(), sheet.words.end(), std::back_inserter(found), [&](auto& w) { return w.first == word; });
        return found;
    }
    /// Whether all boxes have the same place, which `of` gives.
    template<typename Of> static bool areAligned(const Words& words, Of of)
    {
        return !words.isEmpty()
                && std::all_of(words.begin(), words.end(), [&](auto& w) { return isSame(of(w.second), of(words.first().second)); });
    }
    static ReportTable* table(const QStringList& labels, const QVector<QStringList>& rows, qint8 alignment = ReportTable::automatic)
    {
        auto* table = new ReportTable("Table", labels, true);
        for (const QStringList& row : rows) {
            for (int i = 0; i < row.size(); ++i)
                table->appendCell({row.at(i), 0, i == 0 ? qint8(2) : alignment,
                        i == 0 ? ReportTable::CellKind::RowLabel : ReportTable::CellKind::Value});
            table->endRow();
        }
        return table;
    }

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("UIUTILS_ROOT", QFile::encodeName(m_root.path()));
        m_path = m_root.filePath("report.pdf");
        QImage logo(200, 100, QImage::Format_RGB32);
        logo.fill(Qt::magenta);
        QVERIFY(QDir(m_root.path()).mkpath("base/qml/common/images"));
        QVERIFY(logo.save(m_root.filePath("base/qml/common/images/Norda_Color-medium.png")));
        QCOMPARE(outputOf("python3", {UIUTILS_TEST_DATA_DIR "/shapes/shapes.py", m_root.path()}), QString());
    }

    void nothingIsLost_data()
    {
        addColumns<QString>();
        for (const char* shape : {"optical-events", "wireless-survey", "wide", "levels", "long-cells", "long-words", "verdicts"})
            QTest::newRow(shape) << shape;
    }
    void nothingIsLost()
    {
        const auto [shape] = currentRow<QString>();
        print(shape);
        const QString text = pagesOf(m_path).join(QString()).remove(QRegularExpression("\\s"));
        const QRegularExpression label("\"(?:label|title)\": \"([ !#-\\[\\]-~]+)\"");
        for (auto it = label.globalMatch(contentsOf(m_root.filePath(shape + ".json"))); it.hasNext();) {
            const QString cell = it.next().captured(1).section(' ', 0, 5).remove(' ');
            QVERIFY2(text.contains(cell), qPrintable(cell));
        }
    }

    /// Numbers below each other, texts at their beginning, nothing torn, the space for the remarks.
    void manyColumns()
    {
        print("optical-events");
        QVERIFY(areAligned(all("km"), [](const QRectF& box) { return box.right(); }));
        QVERIFY(areAligned(all("Connector"), [](const QRectF& box) { return box.left(); }));
        QVERIFY(isSame(all("Connector").first().second.left(), all("Event").first().second.left()));
        QCOMPARE(all("s").size(), 40);
        QCOMPARE(all("Attenuation").size(), m_sheets.size() + 7 - 1);
        for (int i = 0; i < 40; ++i) {
            const Words range = all(QString("%1-%2").arg(i * 0.09, 0, 'f', 2).arg(i * 0.09 + 1, 0, 'f', 2));
            QCOMPARE(range.size(), 1);
        }
        for (const Sheet& sheet : qAsConst(m_sheets)) {
            const QRectF remark = sheet.at("Remark");
            QVERIFY(remark.left() < 612 - 42 - 90 && sheet.at("Distance").height() < sheet.at("Page").height());
            for (const auto& word : sheet.words)
                QVERIFY2(word.first != "s" || word.second.right() < remark.left(), qPrintable(word.first));
        }
    }

    /// However much the other columns would like to have.
    void wordsAreWhole()
    {
        const QString remark = QString("up to so many as one can do ").repeated(20);
        print({table({"Electromagnetically", "B", "C", "D", "E", "F"}, {{"Row", "Internationalization of it", remark, remark, remark, remark, remark}})});
        QCOMPARE(all("Electromagnetically").size(), 1);
        QCOMPARE(all("Internationalization").size(), 1);
    }

    /// A word that no line holds does not take the space of the others, and is torn at a separator.
    void longWords()
    {
        print("long-words");
        const Sheet& sheet = m_sheets.first();
        for (const char* word : {"ordinary", "remark", "several", "words."})
            QVERIFY2(isSame(sheet.at(word).top(), sheet.at("An").top()), word);
        QVERIFY(isSame(sheet.at("-12.30").right() - sheet.at("0.25").right(), 0));
        int torn = 0;
        for (const auto& word : sheet.words) {
            torn += word.first.startsWith("/opt");
            QVERIFY2(!word.first.startsWith("/opt") || QString("/-_").contains(word.first.back()), qPrintable(word.first));
        }
        QCOMPARE(torn, 1);
    }

    /// What may not be torn, where a "|" is a place at which a line may end; and where a long word is torn.
    void linesEnd_data()
    {
        addColumns<QString, int, QString>();
        for (const char* text : {"Loss|0.45 dB|at|1550 nm", "9.00-10.00 s|later", "9.00 - 10.00 s|later", "within|\u00b1 0.5 dB",
                     "1 2 3 4", "Port|12 of|Building", "5 %|left", "100|Ethernet"})
            QTest::newRow(text) << QString(text).replace("1 2 3 4", "1|2|3|4") << 0 << QString();
        QTest::newRow("separator") << "series/alpha-2.sor" << 13 << "series/alpha-";
        QTest::newRow("capital") << "portOfTheTerminal" << 12 << "portOfThe";
        QTest::newRow("sign") << "level/-12.34" << 9 << "level/";
        QTest::newRow("number") << "9.00-10.00" << 6 << "9.00-";
        QTest::newRow("nothing") << "xxxxxxxx" << 5 << "xxxxx";
    }
    void linesEnd()
    {
        const auto [marked, end, torn] = currentRow<QString, int, QString>();
        QString text = marked;
        text.replace('|', ' ');
        for (int at = 0; end == 0 && at < text.size(); ++at)
            QVERIFY2(text.at(at) != ' ' || uiutils::isLineBreak(text, at) == (marked.at(at) == '|'), qPrintable(text.mid(at)));
        if (end > 0)
            QCOMPARE(text.left(uiutils::tearIn(text, 0, end)), torn);
    }

    /// Columns, labels and sides change places; numbers are read from left to right all the same.
    void readFromTheRight()
    {
        print("right-to-left");
        m_sheets = picturesOf(m_path);
        const Sheet& sheet = m_sheets.first();
        QVERIFY(sheet.colored(Qt::magenta, {QPointF(), sheet.size}).left() > 400 && sheet.at("Solvant").left() < 43);
        QVERIFY(areAligned(all("km").mid(1), [](const QRectF& box) { return box.right(); }));
        // "-1.5 dB" beside "1.25 km", which is nearer to its label.
        const QRectF loss = sheet.at("-1.5");
        QVERIFY(sheet.at("dB").left() > loss.right() && sheet.at("1.25").left() > sheet.at("dB").right());
        QVERIFY(sheet.at("1550").right() < sheet.at("nm").left() && sheet.at("0.00-12.50").right() < sheet.at("km").left());
        const QRectF beside(QPointF(sheet.at("dB").right(), loss.top()), QPointF(sheet.at("1.25").left(), loss.bottom()));
        QVERIFY(!sheet.colored(QColor(0xb3261e), beside).isEmpty() || !sheet.colored(QColor(0x1d8348), beside).isEmpty());
        // The first line of the paragraph, and of the title, begins at the right margin; the last line does not reach the left.
        QMap<int, QRectF> lines;
        for (const auto& word : sheet.words)
            lines[qRound(word.second.center().y())] |= word.second;
        int full = 0;
        for (const QRectF& line : qAsConst(lines)) {
            if (line.top() < sheet.at("1550").top() - 40 && line.left() > 45)
                QVERIFY2(line.right() > 569 || line.contains(sheet.at("Timestamp").center()), qPrintable(QString::number(line.top())));
            full += line.right() > 569;
        }
        QVERIFY(full > 5);
    }

    /// Each level looks different and is nested in the outline, of which only the outermost entries are open.
    void levels()
    {
        print("levels");
        m_sheets = picturesOf(m_path);
        QSet<QString> looks;
        const Words levels = all("Level");
        for (int page = 0; page < m_sheets.size(); ++page) {
            const Sheet& sheet = m_sheets.at(page);
            for (const auto& word : sheet.words) {
                const QRectF box = word.second.adjusted(0, -1, 0, 1);
                if (word.first == "Level")
                    looks += QString("%1 %2 %3").arg(qRound(box.height())).arg(sheet.colored(QColor(0x00689b), box).isEmpty())
                                     .arg(sheet.colored(QColor(0x606870), box).height() > 4);
            }
        }
        QCOMPARE(levels.size(), 5);
        QCOMPARE(looks.size(), 5);
        const QString outline = outlineOf(m_path).replaceInStrings(QRegularExpression(" @.*"), "").join(", ");
        QVERIFY2(outline.startsWith("0 Level 1, 1 Settings of level 1, 1 Level 2, 2 Settings of level 2, 2 Level 3, 3 Settings of "
                                    "level 3, 3 Level 4, 4 Settings of level 4, 4 Level 5, 5 Settings of level 5, 0 Another"),
                qPrintable(outline));
        QJsonArray entries = QJsonDocument::fromJson(outputOf("qpdf", {"--json", "--json-key=outlines", m_path}).toUtf8())
                                     .object().value("outlines").toArray();
        QVERIFY(!entries.first().toObject().value("kids").toArray().isEmpty());
        for (const QJsonValue& entry : qAsConst(entries))
            QVERIFY(!entry.toObject().value("open").toBool() || entry.toObject().value("kids").toArray().isEmpty());
    }

    /// Verdicts are said with the number beside them, and not twice for one icon.
    void verdicts()
    {
        print("verdicts");
        const QString text = pagesOf(m_path).join(' ').simplified();
        for (const char* doubled : {"Pass Passed", "Pass Pass Pass", "Marginal Marginal Marginal", "Fail Fail Fail"})
            QVERIFY2(!text.contains(doubled), doubled);
        for (const char* said : {"Failed Fail 2", "Loss Pass Pass 0.21 dB", "Marginal -31.0 dB", "Passed Pass", "Continuity Pass Pass ok"})
            QVERIFY2(text.contains(said), said);
    }

    /// Bands are apart, even, and complete with title and row labels; a single row has none.
    void bands()
    {
        print("extremes");
        QVector<qreal> tops;
        const Sheet& sheet = m_sheets.at(1);
        for (const auto& word : sheet.words) {
            if (word.first == "200")
                tops += word.second.top();
        }
        QVERIFY(tops.size() > 5);
        for (int i = 1; i < tops.size(); ++i)
            QVERIFY(isSame(tops.at(i) - tops.at(i - 1), tops.at(1) - tops.at(0)));
        qreal bottom = 0;
        for (const auto& word : sheet.words)
            bottom = word.first == "Port" && word.second.top() < tops.at(1) ? qMax(bottom, word.second.bottom()) : bottom;
        QVERIFY(tops.at(1) - bottom > 8);
        const QString text = pagesOf(m_path).join(' ').simplified();
        QVERIFY(text.contains("25 columns Port 1 Level 1 1.00 Frequency 2 1.14"));
    }

    /// No row is alone on the last page of a table, or with one other on its first; whatever the number of rows.
    void endsOfTables()
    {
        for (int rows = 4; rows < 44; ++rows) {
            QVector<QStringList> cells;
            for (int row = 0; row < rows; ++row)
                cells += QStringList {QString("Row%1.").arg(row), QString::number(row)};
            print({new ReportText(QString("line\n").repeated(20 + rows % 25)), table({"Value"}, cells)});
            QVector<int> parts;
            for (const Sheet& sheet : qAsConst(m_sheets))
                parts += std::count_if(sheet.words.begin(), sheet.words.end(), [](auto& w) { return w.first.startsWith("Row"); });
            parts.removeAll(0);
            QVERIFY2(parts.first() >= 3 && (parts.size() == 1 || parts.last() >= 2), qPrintable(QString::number(rows)));
        }
    }

    void aTornRowKeepsItsLabel()
    {
        print({table({"A", "B"}, {{"Label", QString("word ").repeated(4000), "beside"}})});
        QVERIFY(m_sheets.size() > 2);
        for (const Sheet& sheet : qAsConst(m_sheets)) {
            QVERIFY(sheet.has("Label"));
            QVERIFY(isSame(sheet.at("Label").right(), m_sheets.first().at("Label").right()));
        }
        QCOMPARE(all("beside").size(), 1);
    }

    /// Cells with an alignment of their own have it, beside others that have not.
    void alignments()
    {
        print({table({"Left", "Right", "Number"}, {{"1", "a", "b", "7"}, {"2", "wide", "wide", "77.5 dB"}}, 1),
                table({"x", "Right"}, {{"3", "c", "5"}, {"4", "longer", "500000"}}, 2)});
        QVERIFY(isSame(all("a").first().second.left(), all("wide").first().second.left()));
        QVERIFY(isSame(all("7").first().second.left(), all("77.5").first().second.left()));
        QVERIFY(isSame(all("5").first().second.right(), all("500000").first().second.right()));
        QVERIFY(isSame(all("c").first().second.right(), all("longer").first().second.right()));
    }

    /// Wide tables are on turned pages with their headings, others are not.
    void turnedPages()
    {
        print("extremes", {{"pdf_table_orientation", "auto"}});
        QSet<qreal> widths;
        for (const Sheet& sheet : qAsConst(m_sheets)) {
            widths += sheet.size.width();
            QCOMPARE(sheet.size.width() > 700, sheet.has("200"));
        }
        QCOMPARE(widths.size(), 2);
        print("optical-events", {{"pdf_table_orientation", "auto"}});
        QCOMPARE(m_sheets.first().size, QSizeF(792, 612));
        QVERIFY(m_sheets.first().has("Timestamp") && m_sheets.first().has("Distance"));
        print("optical-events");
        QCOMPARE(m_sheets.first().size, QSizeF(612, 792));
    }

private:
    QTemporaryDir m_root;
    QString m_path;
    QVector<Sheet> m_sheets;
};

QTEST_MAIN(PageLayoutTest)
#include "tst_pagelayout.moc"
