#pragma once

#include "plotscene.h"

#include <QImage>

namespace uiutils {

/// The painted parts of a plot. They are painted on the GUI thread, because fonts are of one thread, and only when
/// they have changed.
class PlotPictures
{
public:
    /// For a renderer that draws lines itself: what is below and above the curves.
    void paintLayers(const PlotScene& scene, double ratio);
    /// For a renderer that does not: everything in one picture.
    void paintWhole(const PlotScene& scene, double ratio);

    const QImage& backdrop() const { return m_backdrop; }
    const QImage& overlay() const { return m_overlay; }
    const QImage& whole() const { return m_whole; }
    bool isOpaque() const { return m_backdrop.format() == QImage::Format_RGB32; }

private:
    void paintBackdrop(const PlotScene& scene, double ratio);
    void paintOverlay(const PlotScene& scene, double ratio);

    SceneLayer m_backdropLayer;
    SceneLayer m_overlayLayer;
    QFont m_font;
    QImage m_backdrop;
    QImage m_overlay;
    QImage m_whole;
};

} // namespace uiutils
