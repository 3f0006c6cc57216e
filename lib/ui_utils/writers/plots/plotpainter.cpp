#include "writers/plots/plotpainter_p.h"

#include "writers/plots/curvepainter_p.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QImage>
#include <QLocale>

#include <algorithm>
#include <cmath>

namespace uiutils {

namespace {

const QRgb gridColor = 0xd5dbe0;
const QRgb minorGridColor = 0xedf0f2;
const QRgb inkColor = 0x263238;
// Of a solid line; dots between dashes must be farther apart.
constexpr int mostMarkedPoints = 60;
constexpr double mostPixels = 4000;
// Of all curves together, in columns for each pixel: what many curves show of each other is little.
constexpr double columnsOfAllCurves = 16;

} // namespace

PlotPainter::PlotPainter(QPainter& painter, const PlotLayout& layout, const QColor& background, double resolution)
    : m_painter(painter)
    , m_layout(layout)
    , m_data(layout.data())
    , m_frame(layout.frame())
    , m_unit(layout.unit())
    , m_background(background)
    , m_resolution(resolution)
{
}

void PlotPainter::draw(LineRange legend)
{
    m_painter.setRenderHint(QPainter::Antialiasing);
    m_painter.setFont(m_layout.font());
    if (m_frame.width() < 2 || m_frame.height() < 2)
        return;
    drawTitles();
    m_painter.fillRect(m_frame, m_background);
    drawGrid();
    m_painter.save();
    // Dots on the frame are whole.
    const double edge = 0.4 * m_unit;
    m_painter.setClipRect(m_frame.adjusted(-edge, -edge, edge, edge), Qt::IntersectClip);
    const QPen limitPen = m_layout.limitPen();
    // Below the dashes, so that they can be seen on a line of the frame too, and below curves.
    drawLimits(QPen(m_background, limitPen.widthF(), Qt::SolidLine, Qt::FlatCap));
    for (int i = 0; i < m_data.curves.size(); ++i)
        drawCurve(i);
    for (const PlotCurve& curve : m_data.curves)
        drawExcesses(curve);
    drawLimits(limitPen);
    drawMarks();
    m_painter.restore();
    m_painter.setPen(QColor(inkColor));
    if (m_data.xExtent().isEmpty())
        drawNoData();
    drawTickLabels();
    m_layout.legend().draw(m_painter, m_layout.legendPlace(), legend, QColor(inkColor));
}

/// Limits may be behind it.
void PlotPainter::drawNoData()
{
    const QString text = QCoreApplication::translate("PlotImage", "No data");
    QRectF place(0, 0, m_layout.metrics().horizontalAdvance(text), m_layout.lineHeight());
    place.moveCenter(m_frame.center());
    m_painter.fillRect(place.adjusted(-m_unit, 0, m_unit, 0), m_background);
    m_painter.drawText(place.topLeft() + QPointF(0, m_layout.metrics().ascent()), text);
}

void PlotPainter::drawRight(const QPointF& baseLine, const QString& text)
{
    m_painter.drawText(baseLine - QPointF(m_layout.metrics().horizontalAdvance(text), 0), text);
}

void PlotPainter::drawTitles()
{
    const double right = m_layout.size().width();
    const double ascent = m_layout.metrics().ascent();
    m_painter.setPen(QColor(inkColor));
    m_painter.setFont(m_layout.titleFont());
    for (int i = 0; i < m_layout.titleLines().size(); ++i) {
        const QString& line = m_layout.titleLines().at(i);
        const double width = QFontMetricsF(m_layout.titleFont()).horizontalAdvance(line);
        const double left = m_layout.title().isRightToLeft() ? right - width : 0;
        m_painter.drawText(QPointF(left, 0.2 * m_unit + i * m_layout.lineHeight() + ascent), line);
    }
    m_painter.setFont(m_layout.font());
    const double baseLine = m_layout.axisTitleTop() + ascent;
    m_painter.drawText(QPointF(0, baseLine), m_layout.axisTitle(LeftSide));
    if (m_data.has(RightSide))
        drawRight(QPointF(right, baseLine), m_layout.axisTitle(RightSide));
    const QString xTitle = m_layout.xTitle();
    const double width = m_layout.metrics().horizontalAdvance(xTitle);
    m_painter.drawText(
            QPointF(m_frame.center().x() - width / 2, m_frame.bottom() + 0.6 * m_unit + m_layout.lineHeight() + ascent),
            xTitle);
}

void PlotPainter::drawGrid()
{
    const auto drawLines = [this](const QVector<double>& xs, const QVector<double>& ys, QRgb color) {
        m_painter.setPen(QPen(QColor(color), 1, Qt::SolidLine, Qt::FlatCap));
        for (const double x : xs)
            m_painter.drawLine(QPointF(m_layout.xAt(x), m_frame.top()), QPointF(m_layout.xAt(x), m_frame.bottom()));
        for (const double y : ys) {
            const double at = m_layout.yAt(y, LeftSide);
            m_painter.drawLine(QPointF(m_frame.left(), at), QPointF(m_frame.right(), at));
        }
    };
    drawLines(m_layout.x().minorTicks(), m_layout.y(LeftSide).minorTicks(), minorGridColor);
    drawLines(m_layout.x().ticks(), m_layout.y(LeftSide).ticks(), gridColor);
    m_painter.setPen(QPen(QColor(inkColor), 1, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    m_painter.drawRect(m_frame);
}

void PlotPainter::drawTickLabels()
{
    drawTickLabels(LeftSide);
    if (m_data.has(RightSide))
        drawTickLabels(RightSide);
    const QLocale locale;
    const QFontMetricsF metrics = m_layout.metrics();
    double free = 0;
    for (const double tick : m_layout.x().ticks()) {
        const QString text = m_layout.x().label(tick, locale);
        const double width = metrics.horizontalAdvance(text);
        const double x = m_layout.xAt(tick);
        const double left = qBound(0.0, x - width / 2, std::max(0.0, m_layout.size().width() - width));
        m_painter.drawLine(QPointF(x, m_frame.bottom()), QPointF(x, m_frame.bottom() + 0.3 * m_unit));
        if (left < free)
            continue;
        m_painter.drawText(QPointF(left, m_frame.bottom() + 0.4 * m_unit + metrics.ascent()), text);
        free = left + width + 0.5 * m_unit;
    }
}

void PlotPainter::drawTickLabels(PlotSide side)
{
    const QLocale locale;
    const QFontMetricsF metrics = m_layout.metrics();
    const AxisScale& scale = m_layout.y(side);
    for (const double tick : scale.ticks()) {
        const QString text = scale.label(tick, locale);
        const double y = m_layout.yAt(tick, side);
        const double baseLine = y + (metrics.ascent() - metrics.descent()) / 2;
        if (side == LeftSide) {
            drawRight(QPointF(m_frame.left() - 0.5 * m_unit, baseLine), text);
            continue;
        }
        m_painter.drawLine(QPointF(m_frame.right(), y), QPointF(m_frame.right() + 0.3 * m_unit, y));
        m_painter.drawText(QPointF(m_frame.right() + 0.6 * m_unit, baseLine), text);
    }
}

void PlotPainter::drawLimits(const QPen& pen)
{
    m_painter.setPen(pen);
    for (const PlotLimit& limit : m_data.limits) {
        const double y = m_layout.yAt(limit.value, limit.side);
        if (std::isfinite(y))
            m_painter.drawLine(QPointF(m_frame.left(), y), QPointF(m_frame.right(), y));
    }
}

double PlotPainter::columnsOfAPixel() const
{
    return qBound(0.5, columnsOfAllCurves / std::max(1, m_data.curves.size()), m_resolution);
}

/// In pixels of the layout.
QVector<QVector<QPointF>> PlotPainter::placedStretches(const PlotCurve& curve) const
{
    const int columns = std::max(1, int(m_frame.width() * columnsOfAPixel()));
    QVector<QVector<QPointF>> stretches = visibleStretches(curve, m_layout.x(), m_layout.y(curve.side), columns);
    for (QVector<QPointF>& stretch : stretches) {
        for (QPointF& point : stretch)
            point = QPointF(
                    m_frame.left() + point.x() * m_frame.width(), m_frame.bottom() - point.y() * m_frame.height());
    }
    return stretches;
}

void PlotPainter::drawExcesses(const PlotCurve& curve)
{
    for (const PlotExcess& excess : curve.excesses) {
        PlotCurve part;
        part.side = curve.side;
        part.points = excess.points;
        const QVector<QVector<QPointF>> stretches = placedStretches(part);
        QVector<QPointF> dots;
        for (const QVector<QPointF>& stretch : stretches) {
            if (stretch.size() == 1)
                dots += stretch;
        }
        CurvePainter painter(m_painter, m_frame, m_layout.excessPen(excess.isFailure), m_resolution);
        painter.drawLines(stretches);
        painter.drawDots(dots);
    }
}

void PlotPainter::drawMarks()
{
    for (const PlotMark& mark : m_data.marks) {
        const double x = m_layout.xAt(mark.x);
        if (!std::isfinite(x))
            continue;
        m_painter.setPen(m_layout.markPen());
        m_painter.drawLine(QPointF(x, m_frame.top()), QPointF(x, m_frame.bottom()));
        const double width = m_layout.metrics().horizontalAdvance(mark.label);
        const double left = qBound(m_frame.left(), x + 0.3 * m_unit, std::max(m_frame.left(), m_frame.right() - width));
        m_painter.drawText(QPointF(left, m_frame.bottom() - 0.4 * m_unit), mark.label);
    }
}

void PlotPainter::drawCurve(int index)
{
    const PlotCurve& curve = m_data.curves.at(index);
    QPen pen = curve.isMask ? m_layout.limitPen() : m_layout.curvePen(index);
    // Nothing else shows a curve of one point.
    if (curve.points.size() == 1)
        pen.setWidthF(2 * pen.widthF());
    const int most = pen.style() == Qt::SolidLine ? mostMarkedPoints : int(m_frame.width() / (3 * m_unit));
    const bool showsPoints = curve.size <= most && !curve.isMask;
    const QVector<QVector<QPointF>> stretches = placedStretches(curve);
    QVector<QPointF> dots;
    for (const QVector<QPointF>& stretch : stretches) {
        // A point without neighbours makes no line.
        if (showsPoints || stretch.size() == 1)
            dots += stretch;
    }
    CurvePainter painter(m_painter, m_frame, pen, m_resolution);
    painter.drawLines(stretches);
    painter.drawDots(dots);
}

QColor plotBackground(const QString& name)
{
    const QColor color(name);
    return color.isValid() ? color : QColor(Qt::white);
}

QByteArray plotPicture(const PlotLayout& layout, const QColor& background, int scale)
{
    const QSizeF size = layout.size();
    const double factor = std::min({double(scale), mostPixels / size.width(), mostPixels / size.height()});
    const QSizeF pixels = size * factor;
    QImage image(std::max(1, qRound(pixels.width())), std::max(1, qRound(pixels.height())), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(factor, factor);
    PlotPainter(painter, layout, background, factor).draw({0, layout.legend().lineCount()});
    painter.end();
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return png;
}

} // namespace uiutils
