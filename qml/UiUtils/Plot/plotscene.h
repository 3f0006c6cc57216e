#pragma once

#include <QColor>
#include <QFont>
#include <QPainter>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QVector>

namespace uiutils {

struct SceneFill
{
    QRectF rect;
    QColor color;

    bool operator==(const SceneFill& other) const { return rect == other.rect && color == other.color; }
};

struct SceneLine
{
    QVector<QPointF> points;
    QColor color;
    double width = 1;
    bool isDashed = false;

    bool operator==(const SceneLine& other) const
    {
        return points == other.points && color == other.color && width == other.width && isDashed == other.isDashed;
    }
};

struct SceneText
{
    /// The left end of the base line.
    QPointF at;
    QString text;
    QColor color;

    bool operator==(const SceneText& other) const
    {
        return at == other.at && text == other.text && color == other.color;
    }
};

struct SceneDot
{
    QPointF center;
    double radius = 0;
    QColor color;

    bool operator==(const SceneDot& other) const
    {
        return center == other.center && radius == other.radius && color == other.color;
    }
};

/// What is drawn in this order: fills, lines, dots, texts.
struct SceneLayer
{
    QVector<SceneFill> fills;
    QVector<SceneLine> lines;
    QVector<SceneDot> dots;
    QVector<SceneText> texts;

    bool operator==(const SceneLayer& other) const
    {
        return fills == other.fills && lines == other.lines && dots == other.dots && texts == other.texts;
    }
    bool operator!=(const SceneLayer& other) const { return !(*this == other); }
};

/// What is drawn of one curve with one pen, in pixels of the item.
struct SceneStroke
{
    QVector<QVector<QPointF>> lines;
    QVector<QPointF> dots;
    QColor color;
    double width = 1;
};

/// Everything that a plot shows at a moment. Whoever draws it needs nothing else, so it may be drawn in another thread.
struct PlotScene
{
    QSizeF size;
    QFont font;
    /// Where curves are.
    QRectF frame;
    /// Below the curves.
    SceneLayer backdrop;
    QVector<SceneStroke> strokes;
    /// Another number whenever the strokes are others.
    int strokesRevision = 0;
    /// Above the curves.
    SceneLayer overlay;
};

void paintLayer(QPainter& painter, const SceneLayer& layer, const QFont& font);
/// With `resolution` pixels for each unit of the painter's coordinates.
void paintStrokes(QPainter& painter, const PlotScene& scene, double resolution);

} // namespace uiutils
