#include "case.h"

#include "curvegeometry.h"
#include "liveplot.h"
#include "scenebuilder.h"

#include <QImage>
#include <QPainter>
#include <QQuickRenderControl>
#include <QQuickWindow>
#include <QSGRendererInterface>

#include <cmath>
#include <memory>

namespace bench {

namespace {

constexpr int fewPoints = 10 * 1000;
constexpr int manyPoints = 1000 * 1000;
const QSize size(800, 400);
constexpr double lineWidth = 1.7;

/// A signal with a little noise: its line is short, so that the floor is low.
double signalAt(double part, int index)
{
    return std::sin(part * 20) + 0.02 * std::sin(index * 12.9898);
}

QVector<QPointF> samples(int count)
{
    QVector<QPointF> points;
    for (int i = 0; i < count; ++i)
        points += QPointF(i * 1e-3, signalAt(double(i) / count, i));
    return points;
}

/// A loop that is gone through slowly, with the same noise.
QVector<QPointF> loop(int count)
{
    QVector<QPointF> points;
    for (int i = 0; i < count; ++i) {
        const double part = double(i) / count;
        points += QPointF(std::cos(part * 20), signalAt(part, i));
    }
    return points;
}

/// A plot in a window without a screen, on the renderer that draws with the processor.
class ShownPlot
{
public:
    explicit ShownPlot(const QVector<QPointF>& points)
        : m_window(&m_control)
        , m_next(points.size())
    {
        m_plot.setSize(size);
        m_plot.setParentItem(m_window.contentItem());
        m_curve.setCapacity(2 * points.size());
        m_curve.setName(QStringLiteral("Signal"));
        m_plot.addCurve(&m_curve);
        m_curve.setPoints(points);
        m_window.setGeometry(QRect(QPoint(), size));
        m_control.initialize(nullptr);
    }

    /// One more point, and the frame that shows it.
    void frame()
    {
        m_curve.append(m_curve.lastX() + 1e-3, signalAt(1, m_next));
        ++m_next;
        if (m_control.grab().isNull())
            qFatal("the live plot is not drawn");
    }

private:
    QQuickRenderControl m_control;
    QQuickWindow m_window;
    uiutils::PlotCurveItem m_curve;
    uiutils::LivePlot m_plot;
    int m_next;
};

/// What a renderer with geometry is given for the same frame.
class GeometryOfPlot
{
public:
    explicit GeometryOfPlot(int count)
        : m_next(count)
    {
        m_content.colors = &m_colors;
        m_content.curves += &m_curve;
        m_curve.setCapacity(2 * count);
        m_curve.setPoints(samples(count));
    }

    void frame()
    {
        m_curve.append(m_next * 1e-3, signalAt(1, m_next));
        ++m_next;
        m_view.fit(m_content, uiutils::PlotFrame::yTicks(m_content, size.height()));
        const uiutils::PlotFrame frame(m_content, m_view, size);
        uiutils::updateCurves(&m_node, uiutils::plotStrokes(m_content, m_view, frame, 1), 1);
    }

private:
    uiutils::PlotColors m_colors;
    uiutils::PlotCurveItem m_curve;
    uiutils::PlotContent m_content;
    uiutils::PlotView m_view;
    QSGNode m_node;
    int m_next;
};

/// The points as pixels of the picture, ready made.
QVector<QPointF> pixels()
{
    QVector<QPointF> points = samples(fewPoints);
    for (QPointF& point : points)
        point = {point.x() * 1e3 * size.width() / fewPoints, size.height() * (0.5 - point.y() / 2.5)};
    return points;
}

void drawPolyline(const QVector<QPointF>& points, bool isSmooth, double width)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing, isSmooth);
    painter.setPen(QPen(Qt::blue, width));
    painter.drawPolyline(points.constData(), points.size());
}

} // namespace

QVector<Result> livePlotCases(int runs)
{
    QQuickWindow::setSceneGraphBackend(QSGRendererInterface::Software);
    const QVector<QPointF> line = pixels();
    ShownPlot few(samples(fewPoints));
    ShownPlot many(samples(manyPoints));
    ShownPlot looped(loop(manyPoints));
    GeometryOfPlot geometry(manyPoints);
    QVector<Result> results;
    const auto add = [&](const QString& name, const std::function<void()>& ours, bool isSmooth, double limit) {
        const Timing timing = interleaved(runs, ours, [&] { drawPolyline(line, isSmooth, isSmooth ? lineWidth : 1); });
        results.append({name, QStringLiteral("ms CPU"), timing.ours, timing.floor, limit});
    };
    const QString floor = QStringLiteral("drawPolyline of %L1 points").arg(fewPoints);
    add(
            QStringLiteral("live plot: frame after one more of %L1 points / %2").arg(fewPoints).arg(floor),
            [&] { few.frame(); }, true, 0.3);
    add(
            QStringLiteral("live plot: frame after one more of %L1 points / %2").arg(manyPoints).arg(floor),
            [&] { many.frame(); }, true, 0.6);
    add(
            QStringLiteral("live plot: frame after one more of %L1 points that go back and forth / %2").arg(manyPoints).arg(floor),
            [&] { looped.frame(); }, true, 0);
    add(
            QStringLiteral("live plot: geometry after one more of %L1 points / %2").arg(manyPoints).arg(floor),
            [&] { geometry.frame(); }, true, 0.3);
    add(
            QStringLiteral("live plot: frame with %L1 points / %2 as a hairline without smoothing")
                    .arg(fewPoints)
                    .arg(floor),
            [&] { few.frame(); }, false, 0);
    return results;
}

} // namespace bench
