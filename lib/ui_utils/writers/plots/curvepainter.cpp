#include "writers/plots/curvepainter_p.h"

#include "writers/plots/curveink_p.h"

#include <QLineF>
#include <QPaintEngine>

#include <algorithm>

namespace uiutils {

namespace {

// The time to stroke lines together grows with the square of their number.
constexpr int linesOfAPiece = 16;

} // namespace

CurvePainter::CurvePainter(QPainter& painter, const QRectF& frame, const QPen& pen, double resolution)
    : m_painter(painter)
    , m_frame(frame)
    , m_pen(pen)
    , m_resolution(resolution)
{
}

void CurvePainter::drawLines(const QVector<QVector<QPointF>>& stretches)
{
    double painted = 0;
    for (const QVector<QPointF>& stretch : stretches)
        painted += paintedPixels(stretch);
    if (!coversItself(painted)) {
        for (const QVector<QPointF>& stretch : stretches)
            drawLine(stretch);
        return;
    }
    CurveInk ink = this->ink();
    for (const QVector<QPointF>& stretch : stretches) {
        for (int i = 1; i < stretch.size(); ++i)
            ink.mark(onInk(stretch.at(i - 1)), onInk(stretch.at(i)));
    }
    drawInk(ink, m_pen.widthF());
}

void CurvePainter::drawDots(const QVector<QPointF>& points)
{
    const double radius = m_pen.widthF() * 1.4;
    if (coversItself(points.size() * 4 * radius * radius)) {
        CurveInk ink = this->ink();
        for (const QPointF& point : points)
            ink.mark(onInk(point), onInk(point));
        drawInk(ink, 2 * radius);
        return;
    }
    m_painter.setPen(Qt::NoPen);
    m_painter.setBrush(m_pen.color());
    for (const QPointF& point : points)
        m_painter.drawEllipse(point, radius, radius);
    m_painter.setBrush(Qt::NoBrush);
}

bool CurvePainter::coversItself(double paintedPixels) const
{
    return paintedPixels > m_frame.width() * m_frame.height();
}

double CurvePainter::paintedPixels(const QVector<QPointF>& stretch) const
{
    double length = 0;
    for (int i = 1; i < stretch.size(); ++i)
        length += QLineF(stretch.at(i - 1), stretch.at(i)).length() + m_pen.widthF();
    return length * m_pen.widthF();
}

CurveInk CurvePainter::ink() const
{
    return CurveInk((m_frame.size() * m_resolution).toSize());
}

/// Files take a line as it is.
void CurvePainter::drawLine(const QVector<QPointF>& stretch)
{
    if (m_painter.paintEngine()->type() == QPaintEngine::Raster) {
        drawInPieces(stretch);
        return;
    }
    m_painter.setPen(m_pen);
    m_painter.setBrush(Qt::NoBrush);
    if (stretch.size() > 1)
        m_painter.drawPolyline(stretch.constData(), stretch.size());
}

void CurvePainter::drawInPieces(const QVector<QPointF>& stretch)
{
    QPen pen = m_pen;
    double length = 0;
    for (int first = 0; first + 1 < stretch.size(); first += linesOfAPiece) {
        const int last = std::min(first + linesOfAPiece, stretch.size() - 1);
        // A solid pen must not be given a dash offset: it would become a dashed one.
        if (pen.style() != Qt::SolidLine)
            pen.setDashOffset(length / pen.widthF());
        m_painter.setPen(pen);
        m_painter.drawPolyline(stretch.constData() + first, last - first + 1);
        for (int i = first; i < last; ++i)
            length += QLineF(stretch.at(i), stretch.at(i + 1)).length();
    }
}

void CurvePainter::drawInk(const CurveInk& ink, double width)
{
    const double pixels = width * m_resolution;
    m_painter.save();
    m_painter.translate(m_frame.topLeft());
    m_painter.scale(1 / m_resolution, 1 / m_resolution);
    m_painter.setPen(QPen(m_pen.color(), pixels, Qt::SolidLine, Qt::RoundCap));
    // The caps of two lines that are a pen's width apart meet; lines are a quarter of a pixel short at each end.
    m_painter.drawLines(ink.lines(int(pixels - 0.5)));
    m_painter.restore();
}

} // namespace uiutils
