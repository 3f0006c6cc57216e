#pragma once

#include <QPointF>
#include <QRasterWindow>
#include <QVector>

namespace uiutils {
class ReportPainter;
}

namespace uiutils::convert {

/// The pages of a report, one below the other. Escape and Q close it; the arrows, Page Up, Page Down, Home, End, the
/// wheel and a drag scroll; + and - zoom, and 0 makes pages as wide as the window.
class PreviewWindow final : public QRasterWindow
{
public:
    /// Pages that are laid out.
    explicit PreviewWindow(ReportPainter& pages);
    ~PreviewWindow() override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    /// Pixels of a point.
    qreal scale() const;
    int pageAt(qreal y) const;
    void scrollTo(const QPointF& corner);
    void scrollBy(qreal screens) { scrollTo(m_corner + QPointF(0, screens * height() / scale())); }
    void zoomTo(qreal zoom);
    void tellPage();

    ReportPainter& m_pages;
    // In points: where each page begins, and where the last one ends.
    QVector<qreal> m_tops;
    qreal m_widest = 0;
    // 1 makes pages as wide as the window.
    qreal m_zoom = 1;
    // What is in the window's top left corner, in points.
    QPointF m_corner;
    QPointF m_dragged;
};

} // namespace uiutils::convert
