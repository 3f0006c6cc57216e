#pragma once

#include <QPainter>
#include <QPen>
#include <QPointF>
#include <QRectF>
#include <QVector>

namespace uiutils {

class CurveInk;

/// Draws lines and dots of one curve. The time has a maximum that depends on the number of pixels only, not on the
/// number of points or their order.
///
/// A curve that would paint the frame more than once is collected pixel by pixel first. Such a curve covers itself, so
/// that neither its dashes nor its single lines could be distinguished.
class CurvePainter
{
public:
    /// All points are in the painter's coordinates and within the frame. `resolution` is the number of pixels for each
    /// unit of them.
    CurvePainter(QPainter& painter, const QRectF& frame, const QPen& pen, double resolution = 1);

    void drawLines(const QVector<QVector<QPointF>>& stretches);
    void drawDots(const QVector<QPointF>& points);

private:
    bool coversItself(double paintedPixels) const;
    double paintedPixels(const QVector<QPointF>& stretch) const;
    CurveInk ink() const;
    QPointF onInk(const QPointF& point) const { return (point - m_frame.topLeft()) * m_resolution; }
    void drawLine(const QVector<QPointF>& stretch);
    void drawInPieces(const QVector<QPointF>& stretch);
    void drawInk(const CurveInk& ink, double width);

    QPainter& m_painter;
    QRectF m_frame;
    QPen m_pen;
    double m_resolution;
};

} // namespace uiutils
