#pragma once

#include "plotcontent.h"
#include "plotview.h"

#include <QFontMetricsF>
#include <QPointF>
#include <QRectF>
#include <QSizeF>

namespace uiutils {

/// Where the parts of a live plot are, and its scales.
class PlotFrame
{
public:
    PlotFrame() = default;
    PlotFrame(const PlotContent& content, const PlotView& view, const QSizeF& size);

    /// How many ticks the axes of values may have in an item of that height.
    static int yTicks(const PlotContent& content, double height);

    const QRectF& rect() const { return m_rect; }
    const QSizeF& size() const { return m_size; }
    QFontMetricsF metrics() const { return QFontMetricsF(m_font); }
    const QFont& font() const { return m_font; }
    double line() const { return m_line; }
    int legendRows() const { return m_legendRows; }
    bool hasTitles() const { return m_hasTitles; }
    const AxisScale& xScale() const { return m_xScale; }
    const AxisScale& yScale(PlotSide side) const { return side == LeftSide ? m_left : m_right; }

    QPointF pointAt(const QPointF& position) const
    {
        return {m_rect.left() + position.x() * m_rect.width(), m_rect.bottom() - position.y() * m_rect.height()};
    }
    /// The opposite: positions 0 to 1 within the frame.
    QPointF positionOf(const QPointF& point) const;

private:
    double labelWidth(const AxisScale& scale) const;
    int legendRowsFor(const PlotContent& content) const;

    QSizeF m_size;
    QFont m_font;
    double m_line = 0;
    int m_legendRows = 0;
    bool m_hasTitles = false;
    AxisScale m_xScale {Interval(), AxisScale::Linear, AxisScale::AtData, 3};
    AxisScale m_left = m_xScale;
    AxisScale m_right = m_xScale;
    QRectF m_rect;
};

/// The width of a curve's entry in the legend.
double legendEntryWidth(const PlotCurveItem* curve, const QFontMetricsF& metrics);

} // namespace uiutils
