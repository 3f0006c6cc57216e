#include "writers/plots/plotpainter_p.h"

#include "writers/plots/curvepainter_p.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>
#include <cmath>

namespace uiutils {

namespace {

// Distinguishable with any colour vision; after the last colour the dashes change.
const QRgb curveColors[] = {0x00689b, 0xd55e00, 0x009e73, 0xaa4499, 0x7a5195, 0x444444};
const QRgb limitColor = 0xc62828;
const QRgb gridColor = 0xd5dbe0;
const QRgb minorGridColor = 0xedf0f2;
const QRgb inkColor = 0x263238;
constexpr int curvesThatShowTheirPoints = 60;

QString titled(const QString& label, const QString& unit)
{
    if (unit.isEmpty())
        return label;
    return label.isEmpty() ? unit : QStringLiteral("%1 (%2)").arg(label, unit);
}

} // namespace

PlotPainter::PlotPainter(QPainter& painter, const PlotData& data, const QSize& size, const QColor& background)
    : m_painter(painter)
    , m_data(data)
    , m_size(size)
    , m_background(background)
    , m_unit(qBound(10.0, std::min(size.width(), size.height()) / 26.0, 30.0))
    , m_metrics(scaledFont())
    , m_extent(data.extent())
    , m_x(m_extent.x, data.xKind, AxisScale::AtData, int(size.width() / (m_unit * 6)))
    , m_y(m_extent.y, data.yKind, AxisScale::AtTicks, int(size.height() / (m_unit * 3)))
{
}

QFont PlotPainter::scaledFont() const
{
    QFont font(QStringLiteral("sans-serif"));
    font.setPixelSize(int(m_unit));
    return font;
}

void PlotPainter::draw()
{
    m_painter.setRenderHint(QPainter::Antialiasing);
    m_painter.setFont(scaledFont());
    layOut();
    if (m_frame.width() < 2 || m_frame.height() < 2)
        return;
    m_painter.fillRect(m_frame, m_background);
    drawGrid();
    m_painter.setClipRect(m_frame.adjusted(-1, -1, 1, 1));
    for (int i = 0; i < m_data.curves.size(); ++i)
        drawCurve(i);
    drawLimits();
    m_painter.setClipping(false);
    if (m_extent.x.isEmpty())
        m_painter.drawText(m_frame, Qt::AlignCenter, QCoreApplication::translate("PlotImage", "No data"));
    drawTickLabels();
    drawTitles();
    m_legend.draw(m_painter, m_legendPlace, QColor(inkColor));
}

void PlotPainter::layOut()
{
    const QLocale locale;
    const double line = m_metrics.height();
    double labelWidth = 0;
    for (const double tick : m_y.ticks())
        labelWidth = std::max(labelWidth, m_metrics.horizontalAdvance(m_y.label(tick, locale)));
    const double endLabel
            = m_x.ticks().isEmpty() ? 0 : m_metrics.horizontalAdvance(m_x.label(m_x.ticks().constLast(), locale));

    const double left = labelWidth + 1.2 * m_unit;
    const double right = std::max(0.6 * m_unit, endLabel / 2 + 0.3 * m_unit);
    m_legend = PlotLegend(legendEntries(), m_metrics, m_unit, m_size.width() - left - right);
    const double legendHeight = m_legend.rowCount() * line;
    const double top = line + legendHeight + 0.8 * m_unit;
    const double bottom = 2 * line + 0.9 * m_unit;
    // Whole pixels, so that a curve is thinned out in the same columns in which it is drawn.
    m_frame = QRectF(left, top, m_size.width() - left - right, m_size.height() - top - bottom).toRect();
    m_legendPlace = QPointF(m_frame.left(), line + 0.4 * m_unit);
}

QPen PlotPainter::curvePen(int index) const
{
    const int colors = int(std::size(curveColors));
    const Qt::PenStyle styles[] = {Qt::SolidLine, Qt::DashLine, Qt::DotLine, Qt::DashDotLine};
    const Qt::PenStyle style = styles[std::min(index / colors, 3)];
    return QPen(QColor(curveColors[index % colors]), std::max(1.2, m_unit / 9), style, Qt::RoundCap, Qt::RoundJoin);
}

QPen PlotPainter::limitPen() const
{
    return QPen(QColor(limitColor), std::max(1.0, m_unit / 10), Qt::DashLine);
}

QString PlotPainter::yTitle() const
{
    if (m_data.curves.isEmpty())
        return QString();
    const PlotCurve& first = m_data.curves.constFirst();
    if (m_data.curves.size() == 1)
        return titled(first.label, first.unit);
    const bool isShared = std::all_of(m_data.curves.cbegin(), m_data.curves.cend(),
            [&](const PlotCurve& curve) { return curve.unit == first.unit; });
    return isShared ? first.unit : QString();
}

QVector<LegendEntry> PlotPainter::legendEntries() const
{
    QVector<LegendEntry> entries;
    const bool isShared = !yTitle().isEmpty();
    for (int i = 0; m_data.curves.size() > 1 && i < m_data.curves.size(); ++i) {
        const PlotCurve& curve = m_data.curves.at(i);
        entries.append({isShared ? curve.label : titled(curve.label, curve.unit), curvePen(i)});
    }
    const QLocale locale;
    for (const PlotLimit& limit : m_data.limits) {
        const QString text = limit.kind == PlotLimit::Lower ? QCoreApplication::translate("PlotImage", "at least %1 %2")
                                                            : QCoreApplication::translate("PlotImage", "at most %1 %2");
        entries.append({text.arg(locale.toString(limit.value, 'g', 6), limit.unit).trimmed(), limitPen()});
    }
    return entries;
}

void PlotPainter::drawGrid()
{
    const auto drawLines = [this](const QVector<double>& xs, const QVector<double>& ys, QRgb color) {
        m_painter.setPen(QPen(QColor(color), 1));
        for (const double x : xs)
            m_painter.drawLine(QPointF(xAt(x), m_frame.top()), QPointF(xAt(x), m_frame.bottom()));
        for (const double y : ys)
            m_painter.drawLine(QPointF(m_frame.left(), yAt(y)), QPointF(m_frame.right(), yAt(y)));
    };
    drawLines(m_x.minorTicks(), m_y.minorTicks(), minorGridColor);
    drawLines(m_x.ticks(), m_y.ticks(), gridColor);
    m_painter.setPen(QPen(QColor(inkColor), 1));
    m_painter.drawRect(m_frame);
}

void PlotPainter::drawTickLabels()
{
    const QLocale locale;
    const double line = m_metrics.height();
    m_painter.setPen(QColor(inkColor));
    for (const double tick : m_y.ticks()) {
        const QRectF box(0, yAt(tick) - line / 2, m_frame.left() - 0.5 * m_unit, line);
        m_painter.drawText(box, Qt::AlignRight | Qt::AlignVCenter, m_y.label(tick, locale));
    }
    double free = 0;
    for (const double tick : m_x.ticks()) {
        const QString text = m_x.label(tick, locale);
        const double width = m_metrics.horizontalAdvance(text);
        const double left = qBound(0.0, xAt(tick) - width / 2, std::max(0.0, m_size.width() - width));
        m_painter.drawLine(QPointF(xAt(tick), m_frame.bottom()), QPointF(xAt(tick), m_frame.bottom() + 0.3 * m_unit));
        if (left < free)
            continue;
        m_painter.drawText(QRectF(left, m_frame.bottom() + 0.4 * m_unit, width + 1, line), Qt::AlignLeft, text);
        free = left + width + 0.5 * m_unit;
    }
}

void PlotPainter::drawTitles()
{
    const double line = m_metrics.height();
    const auto drawTitle = [this](const QRectF& box, int alignment, const QString& title) {
        m_painter.drawText(box, alignment, m_metrics.elidedText(title, Qt::ElideRight, box.width()));
    };
    m_painter.setPen(QColor(inkColor));
    const double margin = 0.4 * m_unit;
    drawTitle(QRectF(margin, 0.2 * m_unit, m_size.width() - 2 * margin, line), Qt::AlignLeft, yTitle());
    drawTitle(QRectF(m_frame.left(), m_size.height() - line - 0.2 * m_unit, m_frame.width(), line), Qt::AlignHCenter,
            titled(m_data.xLabel, m_data.xUnit));
}

void PlotPainter::drawLimits()
{
    m_painter.setPen(limitPen());
    for (const PlotLimit& limit : m_data.limits) {
        const double y = yAt(limit.value);
        if (std::isfinite(y))
            m_painter.drawLine(QPointF(m_frame.left(), y), QPointF(m_frame.right(), y));
    }
}

void PlotPainter::drawCurve(int index)
{
    const PlotCurve& curve = m_data.curves.at(index);
    const bool showsPoints = curve.size() <= curvesThatShowTheirPoints;
    QVector<QVector<QPointF>> stretches = visibleStretches(m_data, curve, m_x, m_y, std::max(1, int(m_frame.width())));
    QVector<QPointF> dots;
    for (QVector<QPointF>& stretch : stretches) {
        for (QPointF& point : stretch)
            point = QPointF(
                    m_frame.left() + point.x() * m_frame.width(), m_frame.bottom() - point.y() * m_frame.height());
        // A point without neighbours makes no line.
        if (showsPoints || stretch.size() == 1)
            dots += stretch;
    }
    CurvePainter painter(m_painter, m_frame, curvePen(index));
    painter.drawLines(stretches);
    painter.drawDots(dots);
}

} // namespace uiutils
