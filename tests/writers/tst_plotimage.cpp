#include "writers/plotimage.h"

#include <embedded/embeddedbackend.h>
#include <embedded/embeddedservice.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QtMath>
#include <QtTest>

namespace {

const QString xId = QStringLiteral(":result:kinds:trace_x:doubleARRAY:");
const QString yId = QStringLiteral(":result:kinds:trace_y:doubleARRAY:");

/// How many pixels hold the curve's colour or shades of it on white.
int curvePixels(const QImage& image)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            if (qBlue(pixel) > qRed(pixel) + 40)
                ++count;
        }
    }
    return count;
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
        QTest::addColumn<QVariantList>("xs");
        QTest::addColumn<QVariantList>("ys");
        QTest::addColumn<bool>("hasCurve");
        QVariantList ramp;
        QVariantList squares;
        for (int i = 0; i < 50; ++i) {
            ramp += double(i);
            squares += double(i * i);
        }
        QTest::newRow("curve") << ramp << squares << true;
        QTest::newRow("unequal lengths") << ramp << squares.mid(0, 10) << true;
        QTest::newRow("equal values") << ramp << QVariantList {3.0, 3.0, 3.0} << true;
        QTest::newRow("points that are not finite")
                << ramp << QVariantList {1.0, qQNaN(), 2.0, qInf(), 3.0, -qInf()} << true;
        QTest::newRow("empty") << QVariantList() << QVariantList() << false;
        QTest::newRow("nothing finite") << ramp << QVariantList {qQNaN(), qInf()} << false;
    }
    void arrays()
    {
        QFETCH(QVariantList, xs);
        QFETCH(QVariantList, ys);
        QFETCH(bool, hasCurve);
        kiv::embedded::EmbeddedBackend backend;
        QVERIFY(backend.loadFile(UIUTILS_TEST_DATA_DIR "/services/kinds.service.json"));
        QVERIFY(backend.service("kinds")->setValue(xId, xs));
        QVERIFY(backend.service("kinds")->setValue(yId, ys));

        PlotImage plot;
        plot.setService("kinds");
        plot.setSize(300, 200);
        QVERIFY(plot.write("/tmp/rep_plot_4.png"));
        QFile file(m_root.filePath("tmp/rep_plot_4.png"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), plot.getData());
        const QImage image = QImage::fromData(plot.getData(), "PNG");
        QCOMPARE(image.size(), QSize(300, 200));
        QCOMPARE(curvePixels(image) > 100, hasCurve);
    }

    void sizes_data()
    {
        QTest::addColumn<QSize>("asked");
        QTest::addColumn<QSize>("drawn");
        QTest::newRow("unset") << QSize(0, 0) << QSize(600, 400);
        QTest::newRow("large") << QSize(2'000'000'000, 1200) << QSize(4000, 1200);
        QTest::newRow("tiny") << QSize(1, -5) << QSize(50, 400);
    }
    void sizes()
    {
        QFETCH(QSize, asked);
        QFETCH(QSize, drawn);
        PlotImage plot;
        plot.setSize(asked.width(), asked.height());
        plot.setCurveBackground("no colour");
        QVERIFY(plot.write("/tmp/rep_plot_0.png"));
        QCOMPARE(QImage::fromData(plot.getData()).size(), drawn);
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
