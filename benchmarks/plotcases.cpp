#include "case.h"

#include "writers/plots/plotdata_p.h"
#include "writers/plots/plotpainter_p.h"

#include <QImage>
#include <QPainter>

#include <cmath>

namespace bench {

namespace {

constexpr int points = 100'000;
const QSize size(800, 400);

/// What a service has.
struct Arrays
{
    QVariantList xs;
    QVariantList ys;
};

/// A noisy slope, as a trace over distance is.
Arrays trace()
{
    Arrays arrays;
    for (int i = 0; i < points; ++i) {
        arrays.xs += i * 0.001;
        arrays.ys += -0.0002 * i + std::sin(i * 12.9898) * 0.8;
    }
    return arrays;
}

/// The plot's points as pixels of the whole picture, ready made.
QVector<QPointF> pixels(const Arrays& arrays)
{
    uiutils::PlotData data;
    uiutils::addCurve(data, {}, arrays.xs, arrays.ys);
    const uiutils::AxisScale x(data.xExtent(), data.xKind, uiutils::AxisScale::AtData, 10);
    const uiutils::AxisScale y(
            data.yExtent(uiutils::LeftSide), uiutils::AxisScale::Linear, uiutils::AxisScale::AtTicks, 10);
    QVector<QPointF> result;
    for (int i = 0; i < points; ++i) {
        const QPointF point(arrays.xs.at(i).toDouble(), arrays.ys.at(i).toDouble());
        result += QPointF(x.position(point.x()) * size.width(), (1 - y.position(point.y())) * size.height());
    }
    return result;
}

QImage emptyPicture()
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    return image;
}

void drawPlot(const Arrays& arrays)
{
    const auto data = std::make_shared<uiutils::PlotData>();
    uiutils::addCurve(*data, {}, arrays.xs, arrays.ys);
    QImage image = emptyPicture();
    QPainter painter(&image);
    uiutils::PlotPainter(painter, uiutils::PlotLayout(data, QString(), size), Qt::white, 1).draw({});
}

void drawPolyline(const QVector<QPointF>& points)
{
    QImage image = emptyPicture();
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::blue, 1.7));
    painter.drawPolyline(points.constData(), points.size());
}

} // namespace

QVector<Result> plotCases(int runs)
{
    const Arrays arrays = trace();
    const QVector<QPointF> line = pixels(arrays);
    const Timing timing = interleaved(
            runs, [&] { drawPlot(arrays); }, [&] { drawPolyline(line); });
    return {{QStringLiteral("plot of %L1 points, axes and all / drawPolyline of the same points").arg(points),
            QStringLiteral("ms CPU"), timing.ours, timing.floor, 0.5}};
}

} // namespace bench
