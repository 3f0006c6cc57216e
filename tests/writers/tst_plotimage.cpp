#include "columns.h"
#include "files.h"

#include "writers/plots/plotdata_p.h"
#include "writers/plots/plotimage.h"

#include <embedded/embeddedbackend.h>
#include <embedded/embeddedservice.h>

#include <QImage>

namespace {

const QString xId = QStringLiteral(":result:kinds:trace_x:doubleARRAY:");
const QString yId = QStringLiteral(":result:kinds:trace_y:doubleARRAY:");

/// Where the picture has the curve's colour, or shades of it.
QRect curveExtent(const QImage& image)
{
    QRect extent;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            if (qBlue(pixel) > qRed(pixel) + 60)
                extent |= QRect(x, y, 1, 1);
        }
    }
    return extent;
}

/// Fonts differ a little from machine to machine, and the position of the axes with them.
bool isNear(const QRect& a, const QRect& b)
{
    const auto near = [](int x, int y) { return qAbs(x - y) <= 12; };
    return a.isNull() == b.isNull() && near(a.left(), b.left()) && near(a.top(), b.top()) && near(a.right(), b.right())
            && near(a.bottom(), b.bottom());
}

} // namespace

class PlotImageTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_root;

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("UIUTILS_ROOT", m_root.path().toLocal8Bit());
        QVERIFY(QDir(m_root.path()).mkdir("tmp"));
    }

    void arrays_data()
    {
        addColumns<QVariantList, QVariantList, QSize, QRect>();
        QVariantList ramp;
        QVariantList squares;
        for (int i = 0; i < 50; ++i) {
            ramp += double(i);
            squares += double(i * i);
        }
        const QSize small(300, 200);
        QTest::newRow("curve") << ramp << squares << small << QRect(39, 25, 253, 141);
        QTest::newRow("large") << ramp << squares << QSize(2000, 1200) << QRect(120, 96, 1853, 1006);
        QTest::newRow("unequal lengths") << ramp << squares.mid(0, 10) << small << QRect(30, 47, 265, 119);
        QTest::newRow("equal values") << ramp << QVariantList {3.0, 3.0, 3.0} << small << QRect(26, 91, 265, 4);
        QTest::newRow("one point") << QVariantList {5.0} << QVariantList {1e9} << small << QRect(174, 91, 3, 4);
        QTest::newRow("points that are not finite")
                << ramp << QVariantList {1.0, qQNaN(), 2.0, qInf(), 3.0, -qInf()} << small << QRect(26, 20, 269, 146);
        QTest::newRow("empty") << QVariantList() << QVariantList() << small << QRect();
        QTest::newRow("nothing finite") << ramp << QVariantList {qQNaN(), qInf()} << small << QRect();
        QTest::newRow("no axis finite") << QVariantList {qQNaN(), qInf()} << QVariantList {qQNaN(), -qInf()} << small << QRect();
    }
    void arrays()
    {
        const auto [xs, ys, size, extent] = currentRow<QVariantList, QVariantList, QSize, QRect>();
        kiv::embedded::EmbeddedBackend backend;
        QVERIFY(backend.loadFile(UIUTILS_TEST_DATA_DIR "/services/kinds.service.json"));
        QVERIFY(backend.service("kinds")->setValue(xId, xs));
        QVERIFY(backend.service("kinds")->setValue(yId, ys));

        PlotImage plot;
        plot.setService("kinds");
        plot.setSize(size.width(), size.height());
        QVERIFY(plot.write("/tmp/rep_plot_4.png"));
        QCOMPARE(contentsOf(m_root.filePath("tmp/rep_plot_4.png")), plot.getData());
        const QImage image = QImage::fromData(plot.getData(), "PNG");
        QCOMPARE(image.size(), size);
        const QRect drawn = curveExtent(image);
        const QString difference = QString("%1,%2 %3x%4").arg(drawn.x()).arg(drawn.y()).arg(drawn.width()).arg(drawn.height());
        QVERIFY2(isNear(drawn, extent), qPrintable(difference));
    }

    /// Texts, lines and places have one size, whatever the number of pixels.
    void theSameDrawingAtEveryResolution()
    {
        kiv::embedded::EmbeddedBackend backend;
        QVERIFY(backend.loadFile(UIUTILS_TEST_DATA_DIR "/plots/eight.service.json"));
        QVector<QImage> pictures;
        for (const int scale : {1, 3}) {
            PlotImage plot;
            plot.setService("eight");
            plot.setTitle("Title");
            plot.setSize(700, 300);
            plot.setPixelScale(scale);
            QVERIFY(plot.write("/tmp/rep_plot_5.png"));
            pictures += QImage::fromData(plot.getData());
        }
        const QSize size = pictures.first().size();
        QCOMPARE(pictures.last().size(), size * 3);
        // Shades of cells: the same ink is in the same place, though not in the same pixels.
        const QSize cells = size / 6;
        int worst = 0;
        for (QImage& picture : pictures)
            picture = picture.scaled(cells, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).convertToFormat(QImage::Format_Grayscale8);
        for (int y = 0; y < cells.height(); ++y) {
            for (int x = 0; x < cells.width(); ++x)
                worst = qMax(worst, qAbs(qGray(pictures[0].pixel(x, y)) - qGray(pictures[1].pixel(x, y))));
        }
        QVERIFY2(worst < 40, qPrintable(QString::number(worst)));
    }

    /// Nothing longer than the maximum in a plot reaches the painter.
    void hugeTexts()
    {
        QByteArray service = R"({"service": "huge", "items": [
            {"id": ":result:huge:a_x:doubleARRAY:", "type": "doubleARRAY", "label": "HUGE", "unit": "HUGE", "value": [1]},
            {"id": ":result:huge:a_y:doubleARRAY:", "type": "doubleARRAY", "label": "HUGE", "unit": "HUGE", "value": [1],
             "attributes": {"upperLimit": 2}}]})";
        service.replace("HUGE", QByteArray(100'000, 'w'));
        kiv::embedded::EmbeddedBackend backend;
        QVERIFY(backend.loadFile(writeFile(m_root.filePath("huge.service.json"), service)));

        const uiutils::PlotData data = uiutils::readPlotData("huge");
        QCOMPARE(data.curves.size(), 1);
        QCOMPARE(data.limits.size(), 1);
        for (const QString& text : {data.xLabel, data.xUnit, data.curves.first().label, data.curves.first().unit,
                     data.limits.first().unit})
            QCOMPARE(text, QString(199, 'w') + QChar(0x2026));
    }

    /// Which axis is one of times does not depend on the language in which its unit is read.
    void timesInAnyLanguage()
    {
        struct Seconds final : QTranslator
        {
            bool isEmpty() const override { return false; }
            QString translate(const char*, const char* text, const char*, int) const override
            {
                return qstrcmp(text, "s") == 0 ? "Sek" : qstrcmp(text, "rounds") == 0 ? "ms" : QString();
            }
        } seconds;
        QVERIFY(QCoreApplication::installTranslator(&seconds));
        kiv::embedded::EmbeddedBackend backend;
        for (const auto& [unit, kind] : {std::pair(R"("unit": "s")", uiutils::AxisScale::Duration),
                     {R"("attributes": {"formatter": "decimal:s"})", uiutils::AxisScale::Duration}, {R"("unit": "rounds")", uiutils::AxisScale::Linear}}) {
            QByteArray service = R"({"service": "times", "items": [
                {"id": ":result:times:a_x:doubleARRAY:", "type": "doubleARRAY", UNIT, "value": [0, 90000000]},
                {"id": ":result:times:a_y:doubleARRAY:", "type": "doubleARRAY", "value": [1, 2]}]})";
            QVERIFY(backend.loadFile(writeFile(m_root.filePath("times.service.json"), service.replace("UNIT", unit))));
            const uiutils::PlotData data = uiutils::readPlotData("times");
            QVERIFY2(data.xKind == kind, unit);
            QCOMPARE(data.xOwnUnit, kind == uiutils::AxisScale::Linear ? "ms" : "Sek");
            backend.withdraw("times");
        }
    }

    void sizes()
    {
        for (const auto& [asked, drawn] :
                {std::pair(QSize(0, 0), QSize(600, 400)), std::pair(QSize(2'000'000'000, 1200), QSize(4000, 1200)),
                     std::pair(QSize(1, -5), QSize(50, 400))}) {
            PlotImage plot;
            plot.setSize(asked.width(), asked.height());
            plot.setCurveBackground("no colour");
            QVERIFY(plot.write("/tmp/rep_plot_0.png"));
            QCOMPARE(QImage::fromData(plot.getData()).size(), drawn);
        }
    }

    void theImageOutlivesAFailedWrite()
    {
        PlotImage plot;
        QVERIFY(!plot.write("/mnt/usb/missing/plot.png"));
        QCOMPARE(QImage::fromData(plot.getData()).size(), QSize(600, 400));
    }
};

QTEST_MAIN(PlotImageTest)
#include "tst_plotimage.moc"
