#include "columns.h"
#include "pdfsheets.h"

#include "document/reporttemplate.h"
#include "writers/html/pageplots_p.h"
#include "writers/html/plotdrawing_p.h"
#include "writers/html/templatetopdfwriter.h"
#include "writers/pages/reportdrawing.h"
#include "writers/pages/reportpdf.h"

#include <embedded/embeddedbackend.h>

#include <QRandomGenerator>

#include <memory>

#include <time.h>

namespace {

// In points, of a plot of 600 x 400 pixels at the page's left margin.
constexpr qreal leftMargin = 42;
constexpr qreal plotWidth = 450;
constexpr qreal plotHeight = 300;

const QColor limitColor(0xc62828);
const QColor firstColor(0x00689b);
const QColor secondColor(0xd55e00);
const QColor curveColors[] = {firstColor, secondColor, 0x007a5a, 0xaa4499, 0x8a6d00, 0x3f8fd2, 0x7a2e12, 0x444444};

/// The middle of what the label of a tick stands beside.
qreal levelOf(const Sheet& sheet, const QString& label)
{
    return sheet.at(label).center().y();
}

bool isNear(qreal a, qreal b)
{
    return qAbs(a - b) < 1.5;
}

/// A line of that colour across the frame, where the label is.
bool hasLine(const Sheet& sheet, const QColor& color, const QString& label)
{
    const QRectF band(leftMargin + 45, levelOf(sheet, label) - 4, plotWidth - 100, 8);
    const QRectF found = sheet.colored(color, band);
    return isNear(found.center().y(), levelOf(sheet, label)) && found.width() > band.width() - 10
            && found.height() < 2.5;
}

QJsonObject documentWith(const QString& service, const QString& title)
{
    return {{"node_type", "report"}, {"tag", "t"}, {"title", "Report"},
            {"section_0", QJsonObject {{"node_type", "section"}, {"title", "Curves"},
                    {"table_0", QJsonObject {{"node_type", "table"}, {"title", title}, {"label", "plot"}, {"service", service}}}}}};
}

} // namespace

class PlotPagesTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    std::unique_ptr<kiv::embedded::EmbeddedBackend> m_backend;

    QString path() const { return m_folder.filePath("plot.pdf"); }

    Sheet print(const ReportTemplate& document)
    {
        TemplateToPdfWriter writer(document);
        writer.setAttribute("logo", "");
        writer.setAttribute("showSoftwareRevs", false);
        writer.setAttribute("showHardwareRevs", false);
        QString error;
        if (!writer.write(path(), &error))
            qFatal("%s", qPrintable(error));
        return picturesOf(path()).value(0);
    }
    Sheet print(const QString& name)
    {
        ReportTemplate document;
        document.readFile(UIUTILS_TEST_DATA_DIR "/documents/" + name + ".json");
        return print(document);
    }
    Sheet print(const QJsonObject& document)
    {
        ReportTemplate report;
        report.readFile(writeFile(m_folder.filePath("document.json"), QJsonDocument(document).toJson()));
        return print(report);
    }
    /// Publishes a service with these curves.
    void publish(const QString& service, const QStringList& labels, const QByteArray& rest = "\"value\": [1, 2, 3]")
    {
        QByteArray items;
        for (int i = 0; i < labels.size(); ++i) {
            for (const char* axis : {"x", "y"}) {
                items += items.isEmpty() ? "" : ",";
                items += QString(R"({"id": ":result:%1:c%2_%3:doubleARRAY:", "type": "doubleARRAY", "label": %4, "unit": "dB", %5})")
                                 .arg(service).arg(i, 3, 10, QChar('0')).arg(axis)
                                 .arg(QString::fromUtf8(QJsonDocument(QJsonArray {labels.at(i)}).toJson().trimmed().mid(1).chopped(1)),
                                         QString::fromUtf8(rest)).toUtf8();
            }
        }
        const QString file = writeFile(m_folder.filePath(service + ".service.json"),
                "{\"service\": \"" + service.toUtf8() + "\", \"items\": [" + items + "]}");
        QString problem;
        if (!m_backend->loadFile(file, &problem))
            qFatal("%s", qPrintable(problem));
    }

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("TZ", "UTC");
        tzset();
        qputenv("UIUTILS_ROOT", m_folder.path().toLocal8Bit());
        QVERIFY(QDir(m_folder.path()).mkdir("tmp"));
        m_backend = std::make_unique<kiv::embedded::EmbeddedBackend>();
        for (const char* name : {"eight", "two"})
            QVERIFY(m_backend->loadFile(QString(UIUTILS_TEST_DATA_DIR "/plots/%1.service.json").arg(name)));
    }

    /// Title, every curve and limit in picture and legend, in the size that was asked for, and none of it a picture.
    void eightCurves()
    {
        const Sheet sheet = print("eight-curves");
        QCOMPARE(faultsOf(path()), QString());
        QCOMPARE(misplacedIn({sheet}), QString());
        QCOMPARE(outlineOf(path()), QStringList({"0 Curves @1", "1 Levels by wavelength @1"}));
        for (const auto& [reference, object] : PdfObjects(path()).all())
            QVERIFY2(object.value("/Subtype").toString() != "/Image", qPrintable(reference));

        const qreal bottom = levelOf(sheet, "-45");
        const qreal top = levelOf(sheet, "-5");
        const QRectF title = sheet.at("wavelength");
        QVERIFY(title.bottom() < sheet.at("dBm").top() + 1 && sheet.at("dBm").bottom() < top && title.top() > top - 50);
        const QRectF frame(QPointF(leftMargin, top), QPointF(leftMargin + plotWidth, bottom));
        QVERIFY(frame.height() > plotHeight / 2 && frame.height() < plotHeight);
        const QRectF legend(leftMargin, sheet.at("(km)").bottom(), plotWidth + 1, plotHeight);
        const QStringList text = pagesOf(path()).first().split('\n');
        for (int i = 0; i < 8; ++i) {
            QVERIFY2(!sheet.colored(curveColors[i], frame).isEmpty(), qPrintable(QString::number(i)));
            const QString wavelength = QString::number(1271 + 20 * i);
            QVERIFY2(legend.contains(sheet.at(wavelength)), qPrintable(wavelength));
            const QRectF sample(sheet.at(wavelength).translated(-100, 0));
            QVERIFY2(!sheet.colored(curveColors[i], sample).isEmpty(), qPrintable(wavelength));
        }
        QVERIFY(text.join(' ').contains("at least -40 dBm") && text.join(' ').contains("at most -10 dBm"));
        QVERIFY(hasLine(sheet, limitColor, "-40") && hasLine(sheet, limitColor, "-10"));
        const QRectF curves = sheet.colored(firstColor, frame);
        // Dots are on both ends.
        constexpr qreal dot = 1.6;
        const qreal right = curves.right() - dot;
        QVERIFY(isNear(right, leftMargin + plotWidth - sheet.at("30").width() / 2 - 3));
        QVERIFY(isNear(right, sheet.at("30").center().x()) && isNear(curves.left() + dot, sheet.at("-45").right() + 5));
    }

    /// Each curve and limit lies where its own axis says, and the time axis reads as a clock.
    void twoUnits()
    {
        const Sheet sheet = print("two-units");
        QCOMPARE(misplacedIn({sheet}), QString());
        QVERIFY(hasLine(sheet, secondColor, "-8"));
        QVERIFY(hasLine(sheet, limitColor, "40") && hasLine(sheet, limitColor, "-12"));
        const qreal middle = sheet.at("11:00").center().x();
        const QRectF first(leftMargin + 30, levelOf(sheet, "42"), middle - leftMargin - 60, levelOf(sheet, "24") - levelOf(sheet, "42"));
        QVERIFY(isNear(sheet.colored(firstColor, first).center().y(), levelOf(sheet, "30")));
        QVERIFY(sheet.at("-8").left() > sheet.at("13:00").center().x() && sheet.at("30").right() < sheet.at("09:00").center().x());
        QVERIFY(sheet.at("dBm").left() > middle && sheet.at("(°C)").right() < middle);
        QVERIFY(pagesOf(path()).first().contains("Time of day (2 Mar 2026)"));
        // The mask is lowest in the middle.
        const qreal top = levelOf(sheet, "-4");
        const qreal unit = levelOf(sheet, "-5") - top;
        const QRectF middleOfMask = sheet.colored(limitColor, {middle - 10, top + 2, 20, 0.8 * unit});
        QVERIFY(isNear(middleOfMask.center().y(), top + 0.58 * unit));
        const QRectF endOfMask = sheet.colored(limitColor, {sheet.at("09:00").center().x(), top + 2, 20, 0.8 * unit});
        QVERIFY(isNear(endOfMask.center().y(), top + 0.22 * unit));
    }

    /// A legend that is longer than a page, and names that are longer than the plot is wide.
    void manyCurves()
    {
        QStringList labels;
        for (int i = 0; i < 200; ++i)
            labels += QString("Point%1").arg(i);
        labels[5] = QString("Name").repeated(750);
        labels[6] = QString::fromUtf8("<b>&\u202e\n\u0007(Tj)");
        publish("many", labels);
        print(documentWith("many", QString("Title ").repeated(500)));
        const QVector<Sheet> sheets = sheetsOf(path());
        QCOMPARE(faultsOf(path()), QString());
        QVERIFY(sheets.size() > 1);
        QCOMPARE(misplacedIn(sheets), QString());
        QSet<QString> words;
        for (const Sheet& sheet : sheets) {
            for (const auto& [word, box] : sheet.words)
                words += word;
        }
        for (int i = 0; i < 200; ++i)
            QVERIFY2(i == 5 || i == 6 || words.contains(labels.at(i)), qPrintable(labels.at(i)));
        QVERIFY(std::any_of(words.cbegin(), words.cend(), [](const QString& word) { return word.startsWith("NameName"); }));
        QVERIFY(words.contains("(Tj)"));
        QVERIFY(QFileInfo(path()).size() < 200'000);
    }

    /// A page of thousands of plots is made in seconds: after a hundred titles pictures are shared.
    void manyTitles()
    {
        uiutils::PagePlots plots(QSize(160, 120), Qt::white, 1);
        QVector<QByteArray> pictures;
        for (int i = 0; i < 105; ++i)
            pictures += plots.picture(plots.plot("none", QString("Title %1").arg(i)));
        QCOMPARE(QSet<QByteArray>(pictures.cbegin(), pictures.cend()).size(), 101);
        QCOMPARE(pictures.at(104), plots.picture(plots.plot("missing too", {})));
        QCOMPARE(pictures.at(7), plots.picture(plots.plot("missing too", "Title 7")));
    }

    void manyPoints_data()
    {
        addColumns<int>();
        QTest::newRow("in order") << 0;
        QTest::newRow("back and forth") << 1;
        QTest::newRow("each alone") << 2;
    }
    /// Neither a million points nor their order make a file large.
    void manyPoints()
    {
        const auto [kind] = currentRow<int>();
        QVariantList xs;
        QVariantList ys;
        QRandomGenerator random(5);
        for (int i = 0; i < 1'000'000; ++i) {
            xs += kind == 1 ? random.generateDouble() : double(i);
            ys += kind == 2 && i % 2 ? qQNaN() : random.generateDouble();
        }
        const auto data = std::make_shared<uiutils::PlotData>();
        uiutils::addCurve(*data, {}, xs, ys);
        const auto layout = std::make_shared<const uiutils::PlotLayout>(data, "T", QSize(600, 400));
        const QVector<ReportItem*> items = uiutils::plotItems(layout, Qt::white);
        ReportPDF pages;
        pages.setItems(items.toList());
        QString error;
        const QByteArray file = pages.toPdf(&error);
        qDeleteAll(items);
        QVERIFY2(file.size() > 2000 && file.size() < 500'000, qPrintable(QString::number(file.size())));
        writeFile(path(), file);
        const QRectF curve = picturesOf(path()).value(0).colored(firstColor, {0, 120, 612, 400});
        QVERIFY(curve.width() > 380 && curve.height() > 200 && curve.right() < leftMargin + plotWidth);
    }
};

QTEST_MAIN(PlotPagesTest)
#include "tst_plotpages.moc"
