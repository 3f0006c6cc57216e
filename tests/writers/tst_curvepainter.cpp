#include "columns.h"

#include "writers/plots/curvepainter_p.h"
#include "writers/plots/plotlegend_p.h"

#include <QImage>

using namespace uiutils;

namespace {

using Stretch = QVector<QPointF>;

const QRectF frame(20, 10, 260, 180);

QImage emptyPicture()
{
    QImage image(300, 200, QImage::Format_Grayscale8);
    image.fill(Qt::white);
    return image;
}

template<typename Draw> QImage picture(Draw draw)
{
    QImage image = emptyPicture();
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    draw(painter);
    return image;
}

/// A closed curve with holes between its lines, drawn `turns` times.
Stretch knot(int points, int turns)
{
    Stretch stretch;
    for (int i = 0; i < points; ++i) {
        const double angle = turns * 2 * M_PI * i / points;
        stretch += frame.center() + QPointF(120 * std::cos(3 * angle), 80 * std::sin(2 * angle));
    }
    return stretch;
}

Stretch scattered(int points)
{
    QRandomGenerator random(7);
    Stretch stretch;
    for (int i = 0; i < points; ++i)
        stretch += QPointF(30 + random.bounded(90.0), 20 + random.bounded(160.0));
    return stretch;
}

/// The first pixel that is blank in one picture while the other has ink there and all around it; null if there is none.
QPoint strayInk(const QImage& inked, const QImage& bare)
{
    for (int y = 1; y + 1 < bare.height(); ++y) {
        for (int x = 1; x + 1 < bare.width(); ++x) {
            bool isInked = qGray(bare.pixel(x, y)) > 250;
            for (int n = 0; isInked && n < 9; ++n)
                isInked = qGray(inked.pixel(x - 1 + n % 3, y - 1 + n / 3)) < 100;
            if (isInked)
                return {x, y};
        }
    }
    return {};
}

QStringList textsIn(const PlotLegend& legend)
{
    QStringList texts;
    for (const PlotLegend::Place& place : legend.places())
        texts += place.entry.text;
    return texts;
}

} // namespace

class CurvePainterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// However many lines there are, the picture equals that of drawing each line separately.
    void lines_data()
    {
        addColumns<QVector<Stretch>, QPen>();
        const QPen solid(Qt::black, 2, Qt::SolidLine, Qt::RoundCap);
        const QPen wide(Qt::black, 6, Qt::SolidLine, Qt::RoundCap);
        const QPen dashes(Qt::black, 6, Qt::DashLine, Qt::RoundCap);
        QTest::newRow("few") << QVector<Stretch> {knot(100, 1)} << wide;
        QTest::newRow("over and over") << QVector<Stretch> {knot(20'000, 60)} << solid;
        QTest::newRow("back and forth") << QVector<Stretch> {scattered(3000)} << solid;
        QTest::newRow("in two parts") << QVector<Stretch> {scattered(3000), {}, knot(20'000, 40)} << solid;
        QTest::newRow("dashes") << QVector<Stretch> {knot(300, 1)} << dashes;
    }
    void lines()
    {
        const auto [stretches, pen] = currentRow<QVector<Stretch>, QPen>();
        const QImage ours = picture(
                [&, stretches = stretches, pen = pen](QPainter& painter) { CurvePainter(painter, frame, pen).drawLines(stretches); });
        const QImage plain = picture([&, stretches = stretches, pen = pen](QPainter& painter) {
            painter.setPen(pen);
            for (const Stretch& stretch : stretches) {
                if (pen.style() != Qt::SolidLine)
                    painter.drawPolyline(stretch.constData(), stretch.size());
                for (int i = 1; pen.style() == Qt::SolidLine && i < stretch.size(); ++i)
                    painter.drawLine(stretch.at(i - 1), stretch.at(i));
            }
        });
        QVERIFY(plain != emptyPicture());
        QCOMPARE(strayInk(ours, plain), QPoint());
        QCOMPARE(strayInk(plain, ours), QPoint());
    }

    void dots()
    {
        const QPen pen(Qt::black, 2);
        for (const Stretch& points : {knot(50, 1), knot(30'000, 1)}) {
            const QImage ours = picture([&](QPainter& painter) { CurvePainter(painter, frame, pen).drawDots(points); });
            const QImage plain = picture([&](QPainter& painter) {
                painter.setPen(QPen(Qt::black, 5.6, Qt::SolidLine, Qt::RoundCap));
                painter.drawPoints(points.constData(), points.size());
            });
            QCOMPARE(strayInk(ours, plain), QPoint());
            QCOMPARE(strayInk(plain, ours), QPoint());
        }
    }

    void legendSaysHowManyAreLeftOut()
    {
        const QFontMetricsF metrics((QFont()));
        QVector<LegendEntry> entries;
        for (int i = 0; i < 100; ++i)
            entries.append({QString("Curve %1").arg(i), QPen(Qt::black)});

        const QStringList all = textsIn(PlotLegend(entries.mid(0, 5), metrics, 10, 400));
        QCOMPARE(all.size(), 5);
        QCOMPARE(all.last(), QString("Curve 4"));

        const PlotLegend legend(entries, metrics, 10, 400);
        QCOMPARE(legend.rowCount(), 3);
        const QStringList texts = textsIn(legend);
        QVERIFY(texts.size() > 3);
        QCOMPARE(texts.last(), QString("and %1 more").arg(101 - texts.size()));
        for (const PlotLegend::Place& place : legend.places())
            QVERIFY(place.left + place.width <= 400);

        // Each wider than a row: the count takes the place of the third.
        for (LegendEntry& entry : entries)
            entry.text += QString(200, 'w');
        QCOMPARE(textsIn(PlotLegend(entries, metrics, 10, 400)).last(), QString("and 98 more"));
        QCOMPARE(PlotLegend({}, metrics, 10, 400).rowCount(), 0);
    }
};

QTEST_MAIN(CurvePainterTest)
#include "tst_curvepainter.moc"
