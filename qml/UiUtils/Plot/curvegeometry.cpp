#include "curvegeometry.h"

#include <QSGGeometryNode>
#include <QSGVertexColorMaterial>

#include <algorithm>
#include <cmath>

namespace uiutils {

namespace {

// Across a line: an edge that is transparent, two that are not, and another one that is; at either end.
constexpr int cornersOfALine = 8;
constexpr int indexesOfALine = 18;
// Indexes have 16 bits.
constexpr int linesOfANode = 65535 / cornersOfALine;

struct GeometryLine
{
    QPointF from;
    QPointF to;
    double width;
    QColor color;
};

void addDots(QVector<GeometryLine>& lines, const SceneStroke& stroke)
{
    const double radius = stroke.width * 1.4;
    for (const QPointF& dot : stroke.dots)
        lines.append({dot - QPointF(radius, 0), dot + QPointF(radius, 0), 2 * radius, stroke.color});
}

/// A little longer than they are, so that bends have no notches.
QVector<GeometryLine> linesOf(const QVector<SceneStroke>& strokes)
{
    QVector<GeometryLine> lines;
    for (const SceneStroke& stroke : strokes) {
        for (const QVector<QPointF>& points : stroke.lines) {
            for (int i = 1; i < points.size(); ++i) {
                const QPointF way = points.at(i) - points.at(i - 1);
                const double length = std::hypot(way.x(), way.y());
                const QPointF more = length > 0 ? way / length * (stroke.width / 4) : QPointF(stroke.width / 2, 0);
                lines.append({points.at(i - 1) - more, points.at(i) + more, stroke.width, stroke.color});
            }
        }
        addDots(lines, stroke);
    }
    return lines;
}

QSGGeometryNode* newNode()
{
    auto* node = new QSGGeometryNode;
    auto* geometry = new QSGGeometry(QSGGeometry::defaultAttributes_ColoredPoint2D(), 0, 0);
    geometry->setDrawingMode(QSGGeometry::DrawTriangles);
    geometry->setVertexDataPattern(QSGGeometry::StreamPattern);
    node->setGeometry(geometry);
    node->setMaterial(new QSGVertexColorMaterial);
    node->setFlags(QSGNode::OwnsGeometry | QSGNode::OwnsMaterial);
    return node;
}

void setCorners(QSGGeometry::ColoredPoint2D* corners, const GeometryLine& line, double soft)
{
    const QPointF way = line.to - line.from;
    const double length = std::max(1e-6, std::hypot(way.x(), way.y()));
    const QPointF across(-way.y() / length, way.x() / length);
    const double inner = std::max(0.0, line.width / 2 - soft);
    const double outer = line.width / 2 + soft;
    const double places[] = {-outer, -inner, inner, outer};
    const bool isSolid[] = {false, true, true, false};
    for (int i = 0; i < cornersOfALine; ++i) {
        const QPointF at = (i < 4 ? line.from : line.to) + places[i % 4] * across;
        const QColor& color = line.color;
        // Colours are multiplied by their opacity.
        const int alpha = isSolid[i % 4] ? color.alpha() : 0;
        corners[i].set(float(at.x()), float(at.y()), uchar(color.red() * alpha / 255),
                uchar(color.green() * alpha / 255), uchar(color.blue() * alpha / 255), uchar(alpha));
    }
}

void setIndexes(quint16* indexes, int first)
{
    for (int strip = 0; strip < 3; ++strip) {
        const int corner = first + strip;
        for (const int index : {corner, corner + 1, corner + 4, corner + 1, corner + 5, corner + 4})
            *indexes++ = quint16(index);
    }
}

void fill(QSGGeometryNode* node, const GeometryLine* lines, int count, double soft)
{
    QSGGeometry* geometry = node->geometry();
    geometry->allocate(count * cornersOfALine, count * indexesOfALine);
    for (int i = 0; i < count; ++i) {
        setCorners(geometry->vertexDataAsColoredPoint2D() + i * cornersOfALine, lines[i], soft);
        setIndexes(geometry->indexDataAsUShort() + i * indexesOfALine, i * cornersOfALine);
    }
    node->markDirty(QSGNode::DirtyGeometry);
}

} // namespace

void updateCurves(QSGNode* parent, const QVector<SceneStroke>& strokes, double ratio)
{
    const QVector<GeometryLine> lines = linesOf(strokes);
    const int nodes = (lines.size() + linesOfANode - 1) / linesOfANode;
    while (parent->childCount() > nodes)
        delete parent->lastChild();
    while (parent->childCount() < nodes)
        parent->appendChildNode(newNode());
    for (int i = 0; i < nodes; ++i) {
        const int first = i * linesOfANode;
        fill(static_cast<QSGGeometryNode*>(parent->childAtIndex(i)), lines.constData() + first,
                std::min(linesOfANode, lines.size() - first), 0.5 / ratio);
    }
}

} // namespace uiutils
