#include "writers/plots/curvepainter_p.h"

#include "writers/plots/curveink_p.h"

#include <QLineF>

#include <algorithm>

namespace uiutils {

namespace {

// The time to stroke lines together grows with the square of their number.
constexpr int linesOfAPiece = 16;

} // namespace

CurvePainter::CurvePainter(QPainter& painter, const QRectF& frame, const QPen& pen)
    : m_painter(painter)
    , m_frame(frame)
    , m_pen(pen)
{
}

void CurvePainter::drawLines(const QVector<QVector<QPointF>>& stretches)
{
    double painted = 0;
    for (const QVector<QPointF>& stretch : stretches)
        painted += paintedPixels(stretch);
    if (!coversItself(painted)) {
        for (const QVector<QPointF>& stretch : stretches)
            drawInPieces(stretch);
        return;
    }
    CurveInk ink(m_frame.size().toSize());
    for (const QVector<QPointF>& stretch : stretches) {
        for (int i = 1; i < stretch.size(); ++i)
            ink.mark(stretch.at(i - 1) - m_frame.topLeft(), stretch.at(i) - m_frame.topLeft());
    }
    drawInk(ink, m_pen.widthF());
}

void CurvePainter::drawDots(const QVector<QPointF>& points)
{
    const double radius = m_pen.widthF() * 1.4;
    if (coversItself(points.size() * 4 * radius * radius)) {
        CurveInk ink(m_frame.size().toSize());
        for (const QPointF& point : points)
            ink.mark(point - m_frame.topLeft(), point - m_frame.topLeft());
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
    m_painter.setPen(QPen(m_pen.color(), width, Qt::SolidLine, Qt::RoundCap));
    m_painter.translate(m_frame.topLeft());
    // The caps of two lines that are a pen's width apart meet; lines are a quarter of a pixel short at each end.
    m_painter.drawLines(ink.lines(int(width - 0.5)));
    m_painter.translate(-m_frame.topLeft());
}

} // namespace uiutils
