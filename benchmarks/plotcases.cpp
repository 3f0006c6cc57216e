#include "case.h"

#include "writers/plots/plotdata_p.h"
#include "writers/plots/plotimage.h"
#include "writers/plots/plotpainter_p.h"

#include <QImage>
#include <QPainter>

#include <cmath>

namespace bench {

namespace {

constexpr int points = 100'000;
const QSize size(800, 400);

/// A noisy slope, as a trace over distance is.
uiutils::PlotData trace()
{
    uiutils::PlotData data;
    uiutils::PlotCurve curve;
    for (int i = 0; i < points; ++i) {
        curve.xs += i * 0.001;
        curve.ys += -0.0002 * i + std::sin(i * 12.9898) * 0.8;
    }
    data.curves += curve;
    return data;
}

/// The plot's points as pixels of the whole picture, ready made.
QVector<QPointF> pixels(const uiutils::PlotData& data)
{
    const uiutils::AxisScale x(data.extent().x, data.xKind, uiutils::AxisScale::AtData, 10);
    const uiutils::AxisScale y(data.extent().y, data.yKind, uiutils::AxisScale::AtTicks, 10);
    QVector<QPointF> result;
    for (int i = 0; i < points; ++i) {
        const QPointF point = data.curves.constFirst().point(i);
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

void drawPlot(const uiutils::PlotData& data)
{
    QImage image = emptyPicture();
    QPainter painter(&image);
    uiutils::PlotPainter(painter, data, size, Qt::white).draw();
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
    const uiutils::PlotData data = trace();
    const QVector<QPointF> line = pixels(data);
    const Timing timing = interleaved(
            runs, [&] { drawPlot(data); }, [&] { drawPolyline(line); });
    return {{QStringLiteral("plot of %L1 points, axes and all / drawPolyline of the same points").arg(points),
            QStringLiteral("ms CPU"), timing.ours, timing.floor, 0.5}};
}

} // namespace bench
