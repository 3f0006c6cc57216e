#include "columns.h"
#include "files.h"
#include "filesizelimit.h"
#include "pdfsheets.h"

#include "document/reporttemplate.h"
#include "report/report.h"
#include "writers/pages/reportdrawing.h"
#include "writers/pages/reportheader.h"
#include "writers/pages/reportimage.h"
#include "writers/pages/reportpdf.h"
#include "writers/pages/reporttable.h"
#include "writers/pages/reporttext.h"
#include "writers/html/templatetopdfwriter.h"

#include <embedded/embeddedbackend.h>

#include <QImage>
#include <QPainter>

#include <memory>

namespace {

bool isSame(qreal a, qreal b)
{
    return qAbs(a - b) < 0.3;
}

const char* const statuses[] = {"pass", "marginal", "fail"};
const QColor statusColors[] = {QColor(0, 200, 0), QColor(255, 160, 0), QColor(220, 0, 60)};

/// Blue, with one word; paints far more than it may, and leaves the painter changed.
class Drawing : public ReportDrawing
{
public:
    Drawing(qreal height, const QString& word) : m_height(height), m_word(word) { }

protected:
    qreal height(const QSizeF&) const override { return m_height; }
    void paint(QPainter& painter, const QSizeF& size) const override
    {
        painter.fillRect(QRectF(-900, -900, 9000, 9000), Qt::blue);
        painter.fillRect(QRectF(0, 0, size.width() / 2, size.height()), Qt::yellow);
        painter.drawText(QPointF(10, 20), m_word);
        painter.scale(5, 5);
        painter.setOpacity(0.1);
    }

private:
    qreal m_height;
    QString m_word;
};

void addRow(ReportTable& table, const QStringList& cells, int status = 0)
{
    for (const QString& cell : cells)
        table.appendCell({cell, status});
    table.endRow();
}

} // namespace

class ReportPdfTest : public QObject
{
    Q_OBJECT

private:
    /// Prints items and deletes them. The file has passed qpdf's check, and all words are readable.
    QString printed(const QList<ReportItem*>& items, const std::function<void(ReportPDF&)>& setUp = [](ReportPDF&) {})
    {
        ReportPDF pdf;
        pdf.setItems(items);
        setUp(pdf);
        QString error;
        const bool isPrinted = pdf.print(m_path, &error);
        qDeleteAll(items);
        if (isPrinted && outputOf("qpdf", {"--check", m_path}).startsWith("status"))
            error = "qpdf";
        if (isPrinted && error.isEmpty())
            error = misplacedIn(sheetsOf(m_path));
        if (!error.isEmpty())
            qWarning("not printed well: %s", qPrintable(error));
        return error.isEmpty() ? m_path : QString();
    }

    void drawIcon(const QString& name, QSize size, QColor color) const
    {
        QImage image(size, QImage::Format_ARGB32);
        image.fill(color);
        // With a mask.
        image.setPixelColor(0, 0, Qt::transparent);
        QVERIFY(image.save(m_root.filePath("base/qml/common/images/" + name + ".png")));
    }

    void drawIcons() const
    {
        for (int status = 0; status < 3; ++status)
            drawIcon(QString(statuses[status]) + "_icon", {20, 20}, statusColors[status]);
    }

    void read(ReportTemplate& document, const QJsonObject& json) const
    {
        document.readFile(writeFile(m_root.filePath("document.json"), QJsonDocument(json).toJson()));
        QVERIFY2(!document.hasError(), qPrintable(document.errorString()));
    }

    /// Prints a document.
    void print(const QJsonObject& json, const QVariantMap& attributes = {}) const
    {
        ReportTemplate document;
        read(document, json);
        QList<ReportItem*> items;
        TemplateToPdfWriter writer(document, &items);
        writer.setAttribute("showSoftwareRevs", false);
        writer.setAttribute("showHardwareRevs", false);
        for (auto it = attributes.cbegin(); it != attributes.cend(); ++it)
            writer.setAttribute(it.key(), it.value());
        QString error;
        const bool isPrinted = writer.write(m_path, &error);
        qDeleteAll(items);
        QVERIFY2(isPrinted, qPrintable(error));
        QCOMPARE(misplacedIn(sheetsOf(m_path)), QString());
    }

private Q_SLOTS:
    void initTestCase()
    {
        m_backend = std::make_unique<kiv::embedded::EmbeddedBackend>();
        QVERIFY(m_backend->loadFolders({UIUTILS_TEST_DATA_DIR "/services"}).isEmpty());
        qputenv("UIUTILS_ROOT", QFile::encodeName(m_root.path()));
        QVERIFY(QDir(m_root.path()).mkpath("base/qml/common/images") && QDir(m_root.path()).mkpath("out")
                && QDir(m_root.path()).mkpath("tmp"));
        drawIcon("Norda_Color-medium", {200, 100}, Qt::magenta);
        drawIcons();
        m_path = m_root.filePath("out/report.pdf");
    }

    void cleanup()
    {
        // Whatever happened, nothing is left beside the file.
        QCOMPARE(namesIn(m_root.filePath("out")).size(), QFile::exists(m_path) ? 1 : 0);
        QFile::remove(m_path);
    }

    void documentBecomesPages()
    {
        ReportTemplate document;
        document.readFile(UIUTILS_TEST_DATA_DIR "/documents/everything.json");
        QList<ReportItem*> items;
        TemplateToPdfWriter writer(document, &items);
        writer.setAttribute("fail", true);
        writer.setAttribute("includeJobInfo", true);
        writer.setAttribute("unitId", "U-17");
        writer.setAttribute("author", QString::fromUtf8("Inès Ω"));
        writer.setAttribute("subject", "Acceptance (final)");
        writer.setAttribute("producer", "uiutils");
        QString error;
        QVERIFY2(writer.write(m_path, &error), qPrintable(error));
        qDeleteAll(items);

        QVERIFY(!outputOf("qpdf", {"--check", m_path}).startsWith("status"));
        const QStringList pages = pagesOf(m_path);
        QCOMPARE(infoOf(m_path, "Pages").toInt(), pages.size());
        QCOMPARE(infoOf(m_path, "Page size"), QString("612 x 792 pts (letter)"));
        for (const char* text : {"Solvant Report", "Every kind of node", "Overall Status", "Fail", "Job ID",
                     "Started at 10:00.", "Statuses", "So so"})
            QVERIFY2(pages.first().contains(text), text);
        for (int page = 0; page < pages.size(); ++page) {
            QVERIFY(pages.at(page).contains(QString("Page %1 of %2").arg(page + 1).arg(pages.size())));
            QVERIFY(pages.at(page).contains("Unit ID: U-17"));
            QVERIFY(pages.at(page).contains("Every kind of node"));
        }
        QCOMPARE(infoOf(m_path, "Title"), QString("Every kind of node"));
        QCOMPARE(infoOf(m_path, "Author"), QString::fromUtf8("Inès Ω"));
        QCOMPARE(infoOf(m_path, "Subject"), QString("Acceptance (final)"));
        QCOMPARE(infoOf(m_path, "Producer"), QString("uiutils"));
        const QStringList outline = outlineOf(m_path);
        QVERIFY(outline.contains("0 Directly in the report @1"));
        const QString part = outline.mid(outline.indexOf("0 First @1"), 5).join(", ");
        QCOMPARE(part, QString("0 First @1, 1 Configuration Values @1, 1 Statuses @1, 1 Second @1, 2 Third @1"));
    }

    void pagesOfATable_data()
    {
        addColumns<QString, QSizeF>();
        QTest::newRow("upright") << "portrait" << QSizeF(612, 792);
        QTest::newRow("wide") << "landscape" << QSizeF(792, 612);
    }
    /// Every cell is there, in order, in its column and row, with its alignment and the icon of its status.
    void pagesOfATable()
    {
        const auto [orientation, paper] = currentRow<QString, QSizeF>();
        const int rows = 150;
        QJsonObject table {{"title", "Levels"}, {"use_row_labels", true}, {"num_columns", 4}, {"col_label_0", "Left"},
                {"col_label_1", "Right"}, {"col_label_2", "Middle"}, {"col_label_3", "Remark"}};
        const auto remark = [](int i) {
            QStringList words;
            for (int word = 0; word < (i % 7 ? 1 : 60); ++word)
                words += QString("w%1.%2").arg(i).arg(word);
            return words;
        };
        for (int i = 0; i < rows; ++i)
            table[QString("row_%1").arg(1000 + i)] = QJsonObject {{"label", QString("Row%1").arg(i)},
                    {"cell_0", QJsonObject {{"label", QString("P%1 dBm%1").arg(i)}, {"attr_align", "1"}}},
                    {"cell_1", QJsonObject {{"label", QString("N%1").arg(i * i)}, {"attr_align", "2"}, {"attr_status", i % 5 ? "0" : "16"}}},
                    {"cell_2", QJsonObject {{"label", QString("S%1").arg(i)}, {"attr_align", "0"}, {"attr_status", QString::number(16 << i % 3)}}},
                    {"cell_3", QJsonObject {{"label", remark(i).join(' ')}, {"attr_align", "1"}}}};
        print({{"node_type", "report"}, {"tag", "t"}, {"table_0", table}}, {{"orientation", orientation}});

        const QVector<Sheet> sheets = picturesOf(m_path);
        QVERIFY(sheets.size() > 4);
        const Sheet first = sheets.first();
        int row = 0;
        for (int page = 0; page < sheets.size(); ++page) {
            const Sheet& sheet = sheets.at(page);
            QCOMPARE(sheet.size, paper);
            QVERIFY(sheet.has("Levels"));
            QCOMPARE(sheet.has("Continued"), page > 0);
            for (const char* label : {"Left", "Right", "Middle", "Remark"})
                QVERIFY2(isSame(sheet.at(label).left(), first.at(label).left()), label);
            QVERIFY(sheet.at("Levels").bottom() < sheet.at("Left").center().y());
            qreal bottom = sheet.at("Left").bottom() - 1;
            for (; sheet.has(QString("Row%1").arg(row)); ++row) {
                const QByteArray name = QByteArray::number(row);
                const QRectF label = sheet.at("Row" + name);
                const QRectF left = sheet.at("P" + name);
                const QRectF right = sheet.at("N" + QString::number(row * row));
                const QRectF middle = sheet.at("S" + name);
                const qreal line = label.center().y();
                for (const QRectF& box : {left, sheet.at("dBm" + name), right, middle, sheet.at("w" + name + ".0")})
                    QVERIFY2(isSame(box.center().y(), line), name);
                QVERIFY2(label.top() >= bottom, name);
                QVERIFY2(isSame(label.right(), first.at("Row0").right()), name);
                QVERIFY2(isSame(left.left(), first.at("Left").left()), name);
                QVERIFY2(isSame(right.right(), first.at("Right").right()), name);
                QVERIFY2(label.right() < left.left() && right.right() < middle.left(), name);

                const QRectF beside(QPointF(right.right(), line - 4), QPointF(middle.left(), line + 4));
                for (int status = 0; status < 3; ++status) {
                    const QRectF icon = sheet.colored(statusColors[status], beside);
                    QCOMPARE(!icon.isEmpty(), status == row % 3);
                    QVERIFY2(icon.isEmpty() || qAbs(icon.left() + middle.right() - 2 * first.at("Middle").center().x()) < 3, name);
                }
                for (const QString& word : remark(row)) {
                    const QRectF box = sheet.at(word);
                    QVERIFY2(box.left() >= first.at("Remark").left() - 0.3 && box.center().y() >= line - 0.3, qPrintable(word));
                    bottom = qMax(bottom, box.bottom() - 1);
                }
            }
            QVERIFY(sheet.at("Page").top() >= bottom);
        }
        QCOMPARE(row, rows);
    }

    /// No heading without its contents, no single line of a paragraph, no beginning of a table with less than three
    /// rows, no end with less than two, no low table in two parts, and no half-empty page because of that.
    void breaksBetweenPages()
    {
        const auto linesOf = [](int i, int entry) { return 2 + (i + entry) % 6; };
        const auto rowsOf = [](int i) { return 1 + i * 7 % 23; };
        const auto words = [](const QString& stem, int count) {
            QStringList words;
            for (int n = 0; n < count; ++n)
                words += QString("%1.%2").arg(stem).arg(n);
            return words;
        };
        QJsonObject report {{"node_type", "report"}, {"tag", "t"}};
        const int sections = 90;
        for (int i = 0; i < sections; ++i) {
            QJsonObject section {{"title", QString("Head%1").arg(i)}};
            for (int entry = 0; i % 2 && entry < 4; ++entry)
                section[QString("log_%1").arg(entry)] = words(QString("L%1.%2").arg(i).arg(entry), linesOf(i, entry)).join('\n');
            QJsonObject table {{"num_columns", 1}, {"title", QString("Title%1").arg(i)}};
            for (const QString& word : words(QString("R%1").arg(i), rowsOf(i)))
                table[QString("row_%1").arg(1000 + table.size())] = QJsonObject {{"cell_0", QJsonObject {{"label", word}}}};
            if (i % 2 == 0)
                section["table_0"] = table;
            report[QString("section_%1").arg(1000 + i)] = section;
        }
        print(report);

        const QVector<Sheet> sheets = sheetsOf(m_path);
        QHash<QString, int> pageOf;
        for (int page = 0; page < sheets.size(); ++page) {
            qreal lowest = 0;
            for (const auto& word : sheets.at(page).words) {
                pageOf.insert(word.first, page);
                if (word.second.bottom() < sheets.at(page).at("Page").top())
                    lowest = qMax(lowest, word.second.bottom());
            }
            QVERIFY2(page + 1 == sheets.size() || lowest > 792 * 0.65, qPrintable(QString::number(page)));
        }
        // How many of the words are on each page that has some of them.
        const auto parts = [&](const QStringList& words) {
            QMap<int, int> parts;
            for (const QString& word : words)
                ++parts[pageOf.value(word, -1)];
            return parts.values();
        };
        int partedParagraphs = 0;
        int partedTables = 0;
        for (int i = 0; i < sections; ++i) {
            const QByteArray name = QByteArray::number(i);
            QCOMPARE(pageOf.value("Head" + name, -1), pageOf.value(i % 2 ? "L" + name + ".0.0" : "R" + name + ".0", -2));
            for (int entry = 0; i % 2 && entry < 4; ++entry) {
                const QList<int> lines = parts(words(QString("L%1.%2").arg(i).arg(entry), linesOf(i, entry)));
                QVERIFY2(!lines.contains(1), name);
                partedParagraphs += lines.size() > 1;
            }
            const QList<int> rows = i % 2 ? QList<int> {rowsOf(i)} : parts(words("R" + name, rowsOf(i)));
            QVERIFY2(rows.first() >= qMin(3, rowsOf(i)) && (rowsOf(i) > 8 || rows.size() == 1), name);
            QVERIFY2(rows.size() == 1 || rows.last() > 1, name);
            partedTables += rows.size() > 1;
        }
        // Page breaks differ with the fonts, but not that much.
        QVERIFY(partedParagraphs > 3 && partedTables > 2);
    }

    /// Columns without space continue below, again beside the row labels; an empty one takes no space.
    void wideTables()
    {
        auto* table = new ReportTable("Wide", QString(",b,c,d,e,f,g,h,i,j,k,l,m,n").split(','), true);
        for (int row = 0; row < 2; ++row) {
            table->appendCell({QString("Row%1").arg(row), 0, 2, ReportTable::CellKind::RowLabel});
            for (int column = 0; column < 14; ++column)
                table->appendCell({column == 0 ? QString() : QString("c%1.%2mmmmmm").arg(row).arg(column)});
            table->endRow();
        }
        const QVector<Sheet> sheets = sheetsOf(printed({table}));
        QCOMPARE(sheets.size(), 1);
        QMap<int, QStringList> lines;
        for (const auto& word : sheets.first().words) {
            if (word.first.contains(QRegularExpression("^(Row\\d|c\\d\\.)")))
                lines[qRound(word.second.center().y())] += word.first.section('m', 0, 0);
        }
        QStringList seen[2];
        int bands = 0;
        for (const QStringList& line : qAsConst(lines)) {
            QCOMPARE(line.first(), QString("Row%1").arg(bands % 2));
            seen[bands++ % 2] += line.mid(1);
        }
        QVERIFY(bands >= 4);
        for (int row = 0; row < 2; ++row) {
            QCOMPARE(seen[row].size(), 13);
            for (int column = 1; column < 14; ++column)
                QCOMPARE(seen[row].at(column - 1), QString("c%1.%2").arg(row).arg(column));
        }
    }

    /// Logo, status and a plot with its limits, in their places and proportions.
    void picturesOfAPage()
    {
        print({{"node_type", "report"}, {"tag", "t"}, {"title", "T"},
                      {"section_0", QJsonObject {{"title", "Curves"}, {"table_0", QJsonObject {{"label", "plot"}, {"service", "plots"}}}}}},
                {{"marginal", true}});
        const QVector<Sheet> sheets = picturesOf(m_path);
        QCOMPARE(sheets.size(), 1);
        const Sheet& sheet = sheets.first();
        const QRectF paper(QPointF(), sheet.size);
        const QRectF logo = sheet.colored(Qt::magenta, paper);
        QVERIFY(isSame(logo.left(), 42) && logo.top() > 27 && logo.bottom() < sheet.at("Overall").top());
        QVERIFY(qAbs(logo.width() - 2 * logo.height()) < 2 && logo.right() < sheet.at("Solvant").left());

        const QRectF status = sheet.at("Marginal");
        const QRectF beside(QPointF(sheet.at("Status").right(), status.top()), status.bottomLeft());
        QVERIFY(!sheet.colored(statusColors[1], beside).isEmpty());
        QVERIFY(sheet.colored(statusColors[2], beside).isEmpty());

        // Beside the legend, below the heading's rule: the curve's colour, and the limits' high above it and below it.
        const QRectF plot(QPointF(430, sheet.at("Curves").bottom() + 20), QPointF(550, 700));
        const QRectF curve = sheet.colored(QColor(0x00689b), plot);
        const QRectF limits = sheet.colored(QColor(0xc62828), plot);
        QVERIFY(curve.height() > 10 && curve.right() < 42 + 450);
        QVERIFY(limits.width() > 40 && limits.right() < 42 + 450);
        QVERIFY(limits.top() < curve.top() - 100 && limits.bottom() > curve.bottom() + 10);
        QVERIFY(sheet.colored(QColor(0xc62828), limits.adjusted(0, 20, 0, -20)).isEmpty());
    }

    void aVerdictNeverVanishes_data()
    {
        addColumns<QByteArray>();
        QTest::newRow("no file") << QByteArray();
        QTest::newRow("half a file") << contentsOf(m_root.filePath("base/qml/common/images/pass_icon.png")).left(60);
    }
    /// In cells and in the title block, with different shapes, and one warning however many cells need it.
    void aVerdictNeverVanishes()
    {
        const auto [contents] = currentRow<QByteArray>();
        static QStringList told;
        told.clear();
        auto* table = new ReportTable("T", {"A"}, false);
        for (int i = 0; i < 90; ++i)
            addRow(*table, {QString("cell%1").arg(i)}, 16 << i % 3);
        for (const char* status : statuses) {
            const QString icon = m_root.filePath("base/qml/common/images/") + status + "_icon.png";
            QVERIFY(QFile::remove(icon));
            if (!contents.isEmpty())
                writeFile(icon, contents);
        }
        const auto before = qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& text) {
            if (type == QtWarningMsg)
                told += text;
        });
        const QString path = printed({table}, [](ReportPDF& pdf) { pdf.setFields({{"Status", "Marginal", 32}}); });
        qInstallMessageHandler(before);
        drawIcons();
        QCOMPARE(told.size(), 1);
        const Sheet sheet = picturesOf(path).first();
        const QColor colors[] = {0x1d8348, 0xf0a202, 0xb3261e};
        QVERIFY(!sheet.colored(colors[1], {QPointF(), sheet.at("Marginal").bottomLeft()}).isEmpty());
        QVector<QImage> shapes;
        for (int status = 0; status < 3; ++status) {
            QVERIFY2(told.first().contains(m_root.path() + "/base/qml/common/images/" + statuses[status]), qPrintable(told.first()));
            const QRectF word = sheet.at(QString("cell%1").arg(status));
            QRectF icon = sheet.colored(colors[status], {word.topLeft() - QPointF(30, 0), word.bottomLeft()});
            QVERIFY(icon.width() > 6 && icon.height() > 6);
            const auto scale = sheet.picture.width() / sheet.size.width();
            shapes += sheet.picture.copy(QRectF(icon.topLeft() * scale, icon.size() * scale).toRect())
                              .scaled(20, 20)
                              .convertToFormat(QImage::Format_Mono, Qt::ThresholdDither);
        }
        for (int one = 0; one < 3; ++one) {
            int differing = 0;
            for (int i = 0; i < 400; ++i)
                differing += shapes.at(one).pixel(i % 20, i / 20) != shapes.at((one + 1) % 3).pixel(i % 20, i / 20);
            QVERIFY2(differing > 60, qPrintable(QString::number(differing)));
        }
    }

    /// All formats twice, then pages: each table is there once, and what an application appended stays its own.
    void savesShareTheirItems()
    {
        struct Controller : Report
        {
            using Report::setFormatApplicable;
            using Report::setHtmlWriterAttributes;
        } report;
        ReportTemplate document;
        read(document, {{"node_type", "report"}, {"tag", "t"}, {"orientation", "landscape"},
                               {"table_0", QJsonObject {{"num_columns", 1}, {"title", "Levels"}}}});
        QVERIFY(QDir(m_root.path()).mkpath("cust") && QFile::copy(m_root.filePath("document.json"), m_root.filePath("cust/t.json")));
        report.setTemplatePath("/cust/t.json");
        for (int format = 0; format < 5; ++format)
            report.setFormatApplicable(format, true);
        report.getSetting("reportName")->setValue("a");
        ReportText own("Appended");
        Report::m_reportItems += &own;
        for (const int format : {5, 5, 0}) {
            report.getSetting("reportFormat")->setValue(format);
            QVERIFY(report.save(true));
            QCOMPARE(Report::m_reportItems.first(), &own);
            // The HTML page comes after the PDF.
            QCOMPARE(Report::m_reportItems.size() > 1, format == 5);
            const QString path = m_root.filePath("cust/public/reports/t/a.pdf");
            const QString text = pagesOf(path).join(' ');
            QCOMPARE(text.count("Levels"), 1);
            QCOMPARE(text.count("Software Revisions"), 1);
            QCOMPARE(text.count("Appended"), 1);
            QCOMPARE(infoOf(path, "Page size"), QString("792 x 612 pts (letter)"));
        }
        Report::m_reportItems.clear();
        TemplateToHtmlWriter writer(document, nullptr);
        report.setHtmlWriterAttributes(writer);
        QCOMPARE(writer.attribute("orientation").toString(), QString("landscape"));
    }

    void headingsStayWithTallRows()
    {
        auto* table = new ReportTable("", {""}, false);
        for (int row = 0; row < 4; ++row)
            addRow(*table, {QString("row%1 ").arg(row) + QString("word ").repeated(600)});
        auto* filler = new ReportText(QString("line\n").repeated(30));
        const QStringList pages = pagesOf(printed({filler, new ReportHeader(1, "Heading"), table}));
        QVERIFY(!pages.at(0).contains("Heading"));
        QVERIFY(pages.at(1).contains("Heading") && pages.at(1).contains("row0"));

        // One that must be split anyway leaves no page empty.
        auto* taller = new ReportTable("", {""}, false);
        addRow(*taller, {QString("first ") + QString("word ").repeated(3000)});
        QVERIFY(pagesOf(printed({new ReportHeader(1, "Heading"), taller})).at(0).contains("first"));
    }

    void anyScript_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("Greek") << QString::fromUtf8("Μέτρηση ισχύος");
        QTest::newRow("Cyrillic") << QString::fromUtf8("Измерение мощности");
        QTest::newRow("CJK") << QString::fromUtf8("光功率測量結果");
        QTest::newRow("Arabic") << QString::fromUtf8("نتيجة القياس");
        QTest::newRow("combining") << QString::fromUtf8("A\u030Angstro\u0308m");
        QTest::newRow("symbols") << QString::fromUtf8("−20 µW ± 5 % ≤ 3 Ω ∞ €");
    }

    /// Selected and copied, the text equals the printed one, except for joined forms of letters.
    void anyScript()
    {
        QFETCH(QString, text);
        auto* table = new ReportTable(text, {}, false);
        addRow(*table, {text});
        const QString path = printed({new ReportText(text), table}, [&](ReportPDF& pdf) { pdf.setTitle(text); });
        QCOMPARE(infoOf(path, "Title"), text);
        // Readers have their own order for right-to-left letters.
        const auto letters = [](const QString& s) {
            QString plain = s.normalized(QString::NormalizationForm_KC).remove(QRegularExpression("[ \\p{Cf}]"));
            std::sort(plain.begin(), plain.end());
            return plain;
        };
        int found = 0;
        const QStringList lines = outputOf("pdftotext", {path, "-"}).split('\n');
        for (const QString& line : lines)
            found += letters(line) == letters(text);
        QCOMPARE(found, 3);
    }

    void blankSettings()
    {
        const QString path = printed({}, [](ReportPDF& pdf) { pdf.setLogo("/base/none.png"); });
        QCOMPARE(infoOf(path, "Pages"), QString("1"));
        QCOMPARE(infoOf(path, "Title"), QString("Solvant Report"));
        QVERIFY(!pagesOf(path).first().contains("Unit ID"));
        QVERIFY(outlineOf(path).isEmpty());
    }

    void oddItems_data()
    {
        addColumns<QString, QStringList, QVector<QStringList>, QByteArray, int, QStringList>();
        using Rows = QVector<QStringList>;
        const QStringList one {"A"};
        const auto words = [](int count) {
            QStringList words;
            for (int i = 0; i < count; ++i)
                words += QString("w%1").arg(i);
            return words;
        };
        QByteArray large;
        QBuffer buffer(&large);
        QImage(5000, 9000, QImage::Format_RGB32).save(&buffer, "PNG");
        // The header of 9,000 by 9,000 pixels.
        const QByteArray tooLarge
                = QByteArray::fromHex("424d00000000000000003600000028000000282300002823000001002000") + QByteArray(24, '\0');
        QTest::newRow("a title of pages") << QString("word ").repeated(2000) << one << Rows(100, {"cell"}) << QByteArray()
                                          << 7 << QStringList {"- Continued", "\u2026 Solvant Report"};
        QTest::newRow("hundreds of columns") << "T" << words(300) << Rows {words(300), words(300)} << QByteArray() << 2 << words(300);
        QTest::newRow("hundreds of columns, one row") << "T" << words(300) << Rows {words(300)} << QByteArray() << 6 << words(300);
        QTest::newRow("a row taller than pages") << "T" << one << Rows {{words(3000).join(' ')}} << QByteArray() << 4 << words(3000);
        QTest::newRow("rows of nothing") << "T" << QString(999, ',').split(',') << Rows {{""}} << QByteArray() << 1 << QStringList();
        QTest::newRow("an image larger than a page") << "T" << one << Rows() << large << 2 << QStringList();
        QTest::newRow("what is no image") << "T" << one << Rows() << QByteArray("none") << 1 << QStringList();
        QTest::newRow("an image too large to decode") << "T" << one << Rows() << tooLarge << 1 << QStringList();
        QTest::newRow("control characters") << "T" << one << Rows {{QString("a\x01") + QChar(0xd800) + "\tb\r\nc" + QChar(0) + "\x7f"}}
                                            << QByteArray() << 1 << QStringList();
    }
    /// As the title of a table, as a heading and as the report's own.
    void oddItems()
    {
        const auto [title, labels, rows, image, pages, words]
                = currentRow<QString, QStringList, QVector<QStringList>, QByteArray, int, QStringList>();
        auto* table = new ReportTable(title, labels, false);
        for (const QStringList& row : rows)
            addRow(*table, row);
        const QString path = printed({new ReportTable("", {}, true), new ReportHeader(1, title), table, new ReportImage(image)},
                [title = title](ReportPDF& pdf) { pdf.setTitle(title); });
        QVERIFY(!path.isEmpty());
        const int count = infoOf(path, "Pages").toInt();
        QVERIFY2(count >= pages && count < pages + 3, qPrintable(QString::number(count)));
        const QString text = pagesOf(path).join(' ').simplified();
        for (const QString& word : qAsConst(words))
            QVERIFY2(text.contains(word), qPrintable(word));
    }

    /// In points, in the report's font, within its rectangle; complete, with its heading, and on the page that has room.
    void drawings()
    {
        const QString path = printed({new Drawing(0, "none"), new Drawing(100, "low"), new ReportText("after"),
                new ReportHeader(1, "Heading"), new Drawing(640, "high"), new Drawing(10000, "page"), new ReportText("end")});
        QVERIFY(!path.isEmpty());
        const QVector<Sheet> sheets = picturesOf(path);
        QCOMPARE(sheets.size(), 4);
        const auto drawn = [&](int page) { return sheets[page].colored(Qt::blue, {QPointF(0, 40), QPointF(612, 750)}); };
        QVERIFY(qAbs(drawn(0).height() - 100) < 1 && qAbs(drawn(0).left() - 306) < 1 && qAbs(drawn(0).right() - 570) < 1);
        const QRectF low = sheets[0].at("low");
        const QRectF after = sheets[0].at("after");
        QVERIFY(!sheets[0].has("none") && isSame(low.left(), 52) && isSame(low.height(), after.height()));
        QVERIFY(after.top() > drawn(0).bottom() && !sheets[0].colored(QColor(0x202428), after).isEmpty());
        QVERIFY(!sheets[0].has("Heading") && sheets[1].at("Heading").bottom() < drawn(1).top());
        QVERIFY(qAbs(drawn(1).height() - 640) < 1 && drawn(2).height() > 660 && !sheets[2].has("end") && sheets[3].has("end"));
    }

    void iconsAreStoredOnce()
    {
        auto* table = new ReportTable("T", {"A"}, false);
        for (int i = 0; i < 300; ++i)
            addRow(*table, {"x"}, i % 2 ? 64 : 16);
        QVERIFY(!printed({table}, [](ReportPDF& pdf) { pdf.setLogo({}); }).isEmpty());
        // Two icons, each with its mask. After the annotation, streams and dictionaries stay readable.
        QCOMPARE(contentsOf(m_path).count("/Subtype/Image") + contentsOf(m_path).count("/Subtype /Image"), 4);
    }

    void progressAndCancel()
    {
        QList<ReportItem*> items {new ReportTable("T", {"A"}, false)};
        for (int i = 0; i < 200; ++i)
            addRow(*static_cast<ReportTable*>(items.first()), {QString::number(i)});
        ReportPDF pdf;
        pdf.setItems(items);
        QVector<QPair<int, int>> told;
        int cancelAt = -1;
        bool printsAgain = true;
        connect(&pdf, &ReportPDF::progressChanged, this, [&](int page, int count) {
            told += {page, count};
            printsAgain = printsAgain && pdf.print(m_path);
            if (page == cancelAt)
                pdf.cancel();
        });
        QVERIFY(pdf.print(m_path));
        QVERIFY(!printsAgain);
        const int pages = infoOf(m_path, "Pages").toInt();
        QVERIFY(pages > 3);
        QCOMPARE(told.last(), qMakePair(pages, pages));
        for (int page = 1; page <= pages; ++page)
            QCOMPARE(told.count({page, pages}), 1);

        for (const int at : {0, 1, pages}) {
            writeFile(m_path, "old");
            cancelAt = at;
            QString error = "unset";
            QVERIFY(!pdf.print(m_path, &error));
            QCOMPARE(error, QString());
            QCOMPARE(contentsOf(m_path), QByteArray("old"));
        }
        // It may be deleted meanwhile.
        auto* other = new ReportPDF;
        other->setItems(items);
        connect(other, &ReportPDF::progressChanged, this, [&](int page, int) {
            if (page == 1)
                delete other;
        });
        QVERIFY(!other->print(m_path));
        QCOMPARE(contentsOf(m_path), QByteArray("old"));
        cancelAt = -1;
        QVERIFY(pdf.print(m_path));
        qDeleteAll(items);
    }

    /// Two that print the same items would remove each other's layout, and a writer deletes those of its last pass.
    void onePrintsAtATime()
    {
        ReportTemplate document;
        document.readFile(UIUTILS_TEST_DATA_DIR "/documents/everything.json");
        QList<ReportItem*> items;
        TemplateToPdfWriter writer(document, &items);
        TemplateToPdfWriter otherWriter(document, &items);
        ReportPDF other;
        int refused = 0;
        connect(&writer.pages(), &ReportPDF::progressChanged, this, [&] {
            QString error;
            other.setItems(items);
            refused += !other.print(m_path, &error) && !error.isEmpty();
            refused += !otherWriter.write(m_path, &error) && !error.isEmpty();
        });
        QVERIFY(writer.write(m_path));
        QVERIFY(refused > 2 * items.size());
        // The items of the last pass are deleted, and as many are created.
        const int count = items.size();
        QVERIFY(writer.write(m_path));
        QCOMPARE(items.size(), count);
        QVERIFY(otherWriter.write(m_path));
        other.setItems(items);
        QVERIFY(other.print(m_path));
        qDeleteAll(items);
    }

    void fullDiskIsAnError()
    {
        QList<ReportItem*> items {new ReportTable("T", {"A", "B"}, false)};
        for (int i = 0; i < 2000; ++i)
            addRow(*static_cast<ReportTable*>(items.first()), {QString::number(i * 7919), QString::number(i)});
        ReportPDF pdf;
        pdf.setItems(items);
        QVERIFY(pdf.print(m_path));
        const qint64 size = contentsOf(m_path).size();
        QVERIFY(QFile::remove(m_path));

        for (const qint64 room : {qint64(0), qint64(1), qint64(4096), size / 2, size - 3000, size - 1}) {
            writeFile(m_path, "old");
            QString error;
            bool isPrinted = true;
            {
                const FileSizeLimit disk {rlim_t(room)};
                isPrinted = pdf.print(m_path, &error);
            }
            QVERIFY2(!isPrinted, qPrintable(QString::number(room)));
            QVERIFY2(error.contains(m_path), qPrintable(error));
            QCOMPARE(contentsOf(m_path), QByteArray("old"));
            QCOMPARE(namesIn(m_root.filePath("out")).size(), 1);
        }
        qDeleteAll(items);
    }

private:
    QTemporaryDir m_root;
    QString m_path;
    std::unique_ptr<kiv::embedded::EmbeddedBackend> m_backend;
};

QTEST_MAIN(ReportPdfTest)
#include "tst_reportpdf.moc"
