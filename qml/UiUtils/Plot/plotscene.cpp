#include "plotscene.h"

#include "writers/plots/curvepainter_p.h"

namespace uiutils {

namespace {

QPen penOf(const SceneLine& line)
{
    QPen pen(line.color, line.width, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin);
    if (line.isDashed)
        pen.setDashPattern({5, 4});
    return pen;
}

/// Lines along the pixels are sharp, others smooth.
bool isStraight(const SceneLine& line)
{
    return line.points.size() == 2
            && (line.points.at(0).x() == line.points.at(1).x() || line.points.at(0).y() == line.points.at(1).y());
}

} // namespace

void paintLayer(QPainter& painter, const SceneLayer& layer, const QFont& font)
{
    for (const SceneFill& fill : layer.fills)
        painter.fillRect(fill.rect, fill.color);
    for (const SceneLine& line : layer.lines) {
        painter.setRenderHint(QPainter::Antialiasing, !isStraight(line));
        painter.setPen(penOf(line));
        painter.drawPolyline(line.points.constData(), line.points.size());
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    for (const SceneDot& dot : layer.dots) {
        painter.setBrush(dot.color);
        painter.drawEllipse(dot.center, dot.radius, dot.radius);
    }
    painter.setBrush(Qt::NoBrush);
    painter.setFont(font);
    for (const SceneText& text : layer.texts) {
        painter.setPen(text.color);
        painter.drawText(text.at, text.text);
    }
}

void paintStrokes(QPainter& painter, const PlotScene& scene, double resolution)
{
    painter.setRenderHint(QPainter::Antialiasing);
    for (const SceneStroke& stroke : scene.strokes) {
        // Round ends and bends take several times as long, and cannot be seen at this width.
        const QPen pen(stroke.color, stroke.width, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin);
        CurvePainter curve(painter, scene.frame, pen, resolution);
        curve.drawLines(stroke.lines);
        curve.drawDots(stroke.dots);
    }
}

} // namespace uiutils
