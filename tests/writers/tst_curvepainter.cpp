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
        texts += place.lines.join(' ');
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

    /// Each entry has its place within the width, no two share one, and long ones are wrapped; only beyond 200 lines
    /// texts are shortened, and then entries are counted.
    void legend()
    {
        const QFontMetricsF metrics((QFont()));
        QVector<LegendEntry> entries;
        for (int i = 0; i < 200; ++i)
            entries.append({QString("Curve %1").arg(i), QPen(Qt::black)});
        entries[7].text = QString("Long name ").repeated(20).trimmed();
        const auto faultOf = [&](const PlotLegend& legend) {
            QVector<QRectF> boxes;
            for (const PlotLegend::Place& place : legend.places()) {
                const QRectF box(place.left, place.line, place.width, place.lines.size() - 0.1);
                if (box.left() < 0 || box.right() > 400.01 || box.bottom() > legend.lineCount())
                    return place.lines.first() + " is outside";
                if (std::any_of(boxes.cbegin(), boxes.cend(), [&](const QRectF& other) { return other.intersects(box); }))
                    return place.lines.first() + " lies over another";
                boxes += box;
            }
            return QString();
        };
        const PlotLegend all(entries, 0, metrics, 10, 400);
        const QStringList texts = textsIn(all);
        QCOMPARE(faultOf(all), QString());
        QCOMPARE(texts.size(), 200);
        for (int i = 0; i < 200; ++i)
            QCOMPARE(texts.at(i), entries.at(i).text);
        QVERIFY(all.lineCount() > 50 && all.lineCount() < 200);
        int next = 0;
        for (const LineRange& part : all.parts(12)) {
            QCOMPARE(part.begin, next);
            QVERIFY(part.count() > 0 && part.count() <= 12);
            next = part.end;
        }
        QCOMPARE(next, all.lineCount());

        for (LegendEntry& entry : entries)
            entry.text += QString(200, 'w');
        const PlotLegend shortened(entries, 0, metrics, 10, 400);
        QCOMPARE(textsIn(shortened).size(), 200);
        QCOMPARE(shortened.lineCount(), 200);
        QCOMPARE(faultOf(shortened), QString());
        QVERIFY(textsIn(shortened).last().startsWith("Curve 199w"));
        const PlotLegend counted(entries + entries, 7, metrics, 10, 400);
        QCOMPARE(counted.lineCount(), 200);
        QCOMPARE(textsIn(counted).last(), QString("and 208 more"));
        QCOMPARE(PlotLegend({}, 0, metrics, 10, 400).lineCount(), 0);
    }
};

QTEST_MAIN(CurvePainterTest)
#include "tst_curvepainter.moc"
