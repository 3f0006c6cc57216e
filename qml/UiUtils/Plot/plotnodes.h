#pragma once

#include "plotpictures.h"
#include "plotscene.h"

#include <QQuickWindow>
#include <QSGImageNode>
#include <QSGNode>

namespace uiutils {

/// A picture in the scene graph, whose texture is made anew only for another picture.
class PictureNode
{
public:
    void show(QSGNode* parent, QQuickWindow* window, const QImage& picture, const QRectF& rect);

private:
    QSGImageNode* m_node = nullptr;
    qint64 m_key = 0;
};

/// A plot as one picture: for renderers without geometry.
class PaintedPlotNode : public QSGNode
{
public:
    void update(QQuickWindow* window, const PlotPictures& pictures);

private:
    PictureNode m_picture;
};

/// A plot whose curves are geometry, between two pictures.
class DrawnPlotNode : public QSGNode
{
public:
    DrawnPlotNode();
    void update(QQuickWindow* window, const PlotScene& scene, const PlotPictures& pictures);

private:
    QSGNode* m_below;
    QSGNode* m_curves;
    QSGNode* m_above;
    PictureNode m_backdrop;
    PictureNode m_overlay;
    int m_revision = -1;
};

/// Whether the window's renderer draws geometry.
bool drawsGeometry(QQuickWindow* window);

} // namespace uiutils
