#include "scenebuilder.h"

#include "curvetrace.h"

#include <algorithm>

namespace uiutils {

namespace {

constexpr Status::Code statuses[] = {Status::None, Status::Pass, Status::Marginal, Status::Fail};

SceneStroke strokeOf(const CurveTrace& trace, Status::Code status, const PlotFrame& frame)
{
    SceneStroke stroke;
    const auto placed = [&](const QVector<QPointF>& positions) {
        QVector<QPointF> points;
        points.reserve(positions.size());
        for (const QPointF& position : positions)
            points += frame.pointAt(position);
        return points;
    };
    for (const TracePart& part : trace.lines) {
        if (part.status == status)
            stroke.lines += placed(part.points);
    }
    for (const TracePart& part : trace.dots) {
        if (part.status == status)
            stroke.dots += placed(part.points);
    }
    return stroke;
}

} // namespace

QVector<SceneStroke> plotStrokes(
        const PlotContent& content, const PlotView& view, const PlotFrame& frame, double resolution)
{
    QVector<SceneStroke> strokes;
    const int columns = std::max(1, int(frame.rect().width() * resolution));
    for (const PlotCurveItem* curve : content.visibleCurves()) {
        const CurveTrace trace = curveTrace(curve->source(), view.x(), view.y(sideOf(curve)), columns);
        for (const Status::Code status : statuses) {
            SceneStroke stroke = strokeOf(trace, status, frame);
            stroke.color = status > Status::Pass ? content.verdictColor(status) : content.colorOf(curve);
            stroke.width = content.widthOf(curve, status);
            if (!stroke.lines.isEmpty() || !stroke.dots.isEmpty())
                strokes += stroke;
        }
    }
    return strokes;
}

} // namespace uiutils
