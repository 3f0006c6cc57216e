#include "scenebuilder.h"

#include "curvetrace.h"

#include <algorithm>
#include <cmath>

namespace uiutils {

namespace {

/// Above the curves, which may cover much.
class LimitBuilder
{
public:
    LimitBuilder(const PlotContent& content, const PlotView& view, const PlotFrame& frame)
        : m_content(content)
        , m_view(view)
        , m_frame(frame)
        , m_rect(frame.rect())
        , m_line(frame.line())
    {
    }

    SceneLayer take() { return std::move(m_layer); }

    void addBounds(const PlotCurveItem& curve)
    {
        const PlotSide side = sideOf(&curve);
        for (const CurveBound& bound : curve.bounds()) {
            QVector<QPointF> points = bound.points;
            if (bound.isLevel())
                points = {{m_view.x().low(), points.at(0).y()}, {m_view.x().high(), points.at(0).y()}};
            CurveStore store;
            store.setScales(m_view.x().isLogarithmic(), m_view.y(side).isLogarithmic());
            store.replace(points);
            const int columns = std::max(1, int(m_rect.width()));
            const CurveTrace trace
                    = curveTrace({store, CurveJudge(), CurveVerdicts()}, m_view.x(), m_view.y(side), columns);
            for (const TracePart& part : trace.lines)
                addBoundLine(bound, part.points);
        }
    }

private:
    void addBoundLine(const CurveBound& bound, const QVector<QPointF>& positions)
    {
        QVector<QPointF> points;
        for (const QPointF& position : positions)
            points += m_frame.pointAt(position);
        if (bound.isLevel()) {
            points.first().setY(std::floor(points.constFirst().y()) + 0.5);
            points.last().setY(points.constFirst().y());
        }
        const QColor color = bound.status == Status::Marginal ? m_content.colors->marginal : m_content.colors->limit;
        m_layer.lines.append({points, color, std::max(1.0, m_line / 10), true});
        if (!bound.label.isEmpty())
            addBoundLabel(bound, points.constLast(), color);
    }

    /// On the side where the curve must not be, if there is room.
    void addBoundLabel(const CurveBound& bound, const QPointF& end, const QColor& color)
    {
        const QString text = m_frame.metrics().elidedText(bound.label, Qt::ElideRight, m_rect.width() - m_line);
        const double outside = bound.side == CurveBound::Upper ? end.y() - m_line : end.y();
        const double top = qBound(m_rect.top(), outside, std::max(m_rect.top(), m_rect.bottom() - m_line));
        const double width = m_frame.metrics().horizontalAdvance(text);
        const double left = std::max(m_rect.left(), end.x() - width - 0.4 * m_line);
        // It can be read above curves.
        QColor plate = m_content.colors->plotArea;
        plate.setAlphaF(0.8);
        m_layer.fills.append({QRectF(left, top, width, m_line), plate});
        m_layer.texts.append({{left, top + m_frame.metrics().ascent()}, text, color});
    }

    const PlotContent& m_content;
    const PlotView& m_view;
    const PlotFrame& m_frame;
    QRectF m_rect;
    double m_line;
    SceneLayer m_layer;
};

} // namespace

SceneLayer plotLimits(const PlotContent& content, const PlotView& view, const PlotFrame& frame)
{
    LimitBuilder builder(content, view, frame);
    for (const PlotCurveItem* curve : content.visibleCurves())
        builder.addBounds(*curve);
    return builder.take();
}

} // namespace uiutils
