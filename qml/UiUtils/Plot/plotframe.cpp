#include "plotframe.h"

#include <QLocale>

#include <algorithm>
#include <cmath>

namespace uiutils {

namespace {

constexpr int mostLegendRows = 2;
// In lines of text: an item that is lower shows its curves, and neither titles nor legend.
constexpr double leastLines = 8;

} // namespace

double legendEntryWidth(const PlotCurveItem* curve, const QFontMetricsF& metrics)
{
    // A sample of the line before, a verdict and a gap after.
    return metrics.horizontalAdvance(curve->name()) + 3.6 * metrics.height();
}

int PlotFrame::yTicks(const PlotContent& content, double height)
{
    return int(height / (QFontMetricsF(content.font()).height() * 2.4));
}

PlotFrame::PlotFrame(const PlotContent& content, const PlotView& view, const QSizeF& size)
    : m_size(size)
    , m_font(content.font())
    , m_line(QFontMetricsF(m_font).height())
    , m_hasTitles(size.height() >= leastLines * m_line)
    , m_left(view.y(LeftSide).values(), content.yKinds[LeftSide], AxisScale::AtData, yTicks(content, size.height()))
    , m_right(view.y(RightSide).values(), content.yKinds[RightSide], AxisScale::AtData, yTicks(content, size.height()))
{
    m_legendRows = legendRowsFor(content);
    // Whole lines, so that the frame does not move with every new label.
    const auto widthFor
            = [&](const AxisScale& scale) { return std::ceil(labelWidth(scale) / m_line) * m_line + 0.6 * m_line; };
    const double left = widthFor(m_left);
    const double right = content.has(RightSide) ? widthFor(m_right) : m_line;
    const double top = m_hasTitles ? (m_legendRows + 1) * m_line + 0.5 * m_line : 0.6 * m_line;
    const double bottom = (m_hasTitles ? 2 : 1) * m_line + 0.6 * m_line;
    m_rect = QRectF(left, top, std::max(1.0, size.width() - left - right), std::max(1.0, size.height() - top - bottom))
                     .toRect();
    m_xScale = AxisScale(view.x().values(), content.xKind, AxisScale::AtData, int(m_rect.width() / (m_line * 5)));
}

int PlotFrame::legendRowsFor(const PlotContent& content) const
{
    if (!content.hasLegend || !m_hasTitles)
        return 0;
    double width = 0;
    for (const PlotCurveItem* curve : content.visibleCurves())
        width += legendEntryWidth(curve, metrics());
    return std::min(mostLegendRows, int(std::ceil(width / std::max(1.0, m_size.width()))));
}

double PlotFrame::labelWidth(const AxisScale& scale) const
{
    const QLocale locale;
    double width = 0;
    for (const double tick : scale.ticks())
        width = std::max(width, metrics().horizontalAdvance(scale.label(tick, locale)));
    return width;
}

QPointF PlotFrame::positionOf(const QPointF& point) const
{
    return {(point.x() - m_rect.left()) / std::max(1.0, m_rect.width()),
            (m_rect.bottom() - point.y()) / std::max(1.0, m_rect.height())};
}

} // namespace uiutils
