#include "plotpictures.h"

#include <algorithm>
#include <cmath>

namespace uiutils {

namespace {

QImage emptyPicture(const QSizeF& size, double ratio, QImage::Format format)
{
    QImage image(std::max(1, int(std::ceil(size.width() * ratio))), std::max(1, int(std::ceil(size.height() * ratio))),
            format);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    return image;
}

bool isOf(const QImage& image, const QSizeF& size, double ratio)
{
    return image.devicePixelRatio() == ratio && image.width() == std::max(1, int(std::ceil(size.width() * ratio)))
            && image.height() == std::max(1, int(std::ceil(size.height() * ratio)));
}

bool isOpaqueLayer(const SceneLayer& layer)
{
    return !layer.fills.isEmpty() && layer.fills.constFirst().color.alpha() == 255;
}

} // namespace

void PlotPictures::paintBackdrop(const PlotScene& scene, double ratio)
{
    const bool isSame = isOf(m_backdrop, scene.size, ratio) && m_font == scene.font;
    if (isSame && m_backdropLayer == scene.backdrop)
        return;
    m_backdropLayer = scene.backdrop;
    m_font = scene.font;
    m_backdrop = emptyPicture(scene.size, ratio,
            isOpaqueLayer(scene.backdrop) ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&m_backdrop);
    paintLayer(painter, scene.backdrop, scene.font);
}

void PlotPictures::paintOverlay(const PlotScene& scene, double ratio)
{
    if (isOf(m_overlay, scene.size, ratio) && m_font == scene.font && m_overlayLayer == scene.overlay)
        return;
    m_overlayLayer = scene.overlay;
    m_overlay = emptyPicture(scene.size, ratio, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&m_overlay);
    paintLayer(painter, scene.overlay, scene.font);
}

void PlotPictures::paintLayers(const PlotScene& scene, double ratio)
{
    paintOverlay(scene, ratio);
    paintBackdrop(scene, ratio);
    m_whole = QImage();
}

void PlotPictures::paintWhole(const PlotScene& scene, double ratio)
{
    paintBackdrop(scene, ratio);
    m_whole = m_backdrop;
    QPainter painter(&m_whole);
    paintStrokes(painter, scene, ratio);
    paintLayer(painter, scene.overlay, scene.font);
    m_overlay = QImage();
}

} // namespace uiutils
