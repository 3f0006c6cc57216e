#include "plotnodes.h"

#include "curvegeometry.h"

#include <QSGRendererInterface>

namespace uiutils {

bool drawsGeometry(QQuickWindow* window)
{
    const QSGRendererInterface::GraphicsApi api = window->rendererInterface()->graphicsApi();
    return api != QSGRendererInterface::Unknown && api != QSGRendererInterface::Software
            && api != QSGRendererInterface::OpenVG;
}

void PictureNode::show(QSGNode* parent, QQuickWindow* window, const QImage& picture, const QRectF& rect)
{
    if (!m_node) {
        m_node = window->createImageNode();
        m_node->setOwnsTexture(true);
        m_node->setFiltering(QSGTexture::Linear);
        m_key = 0;
    }
    if (m_key != picture.cacheKey()) {
        const bool isOpaque = !picture.hasAlphaChannel();
        m_node->setTexture(window->createTextureFromImage(
                picture, isOpaque ? QQuickWindow::TextureIsOpaque : QQuickWindow::CreateTextureOptions()));
        m_key = picture.cacheKey();
    }
    m_node->setRect(rect);
    // A node without a texture must not be drawn.
    if (!m_node->parent())
        parent->appendChildNode(m_node);
}

namespace {

/// A picture has whole pixels, and may be larger than the item by a part of one.
QRectF rectOf(const QImage& picture)
{
    return {QPointF(), QSizeF(picture.size()) / picture.devicePixelRatio()};
}

} // namespace

void PaintedPlotNode::update(QQuickWindow* window, const PlotPictures& pictures)
{
    m_picture.show(this, window, pictures.whole(), rectOf(pictures.whole()));
}

DrawnPlotNode::DrawnPlotNode()
    : m_below(new QSGNode)
    , m_curves(new QSGNode)
    , m_above(new QSGNode)
{
    for (QSGNode* node : {m_below, m_curves, m_above})
        appendChildNode(node);
}

void DrawnPlotNode::update(QQuickWindow* window, const PlotScene& scene, const PlotPictures& pictures)
{
    m_backdrop.show(m_below, window, pictures.backdrop(), rectOf(pictures.backdrop()));
    if (m_revision != scene.strokesRevision)
        updateCurves(m_curves, scene.strokes, window->effectiveDevicePixelRatio());
    m_revision = scene.strokesRevision;
    m_overlay.show(m_above, window, pictures.overlay(), rectOf(pictures.overlay()));
}

} // namespace uiutils
