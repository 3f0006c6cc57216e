#include "plotview.h"

#include <algorithm>

namespace uiutils {

namespace {

constexpr double momentSeconds = 10;

bool isLogarithmic(AxisScale::Kind kind)
{
    return kind == AxisScale::Logarithmic;
}

/// Of the points in sight.
Interval valuesInSight(const CurveStore& store, const AxisView& x)
{
    if (!store.isAscending())
        return store.yExtent();
    const int begin = std::max(0, store.firstFrom(x.low()) - 1);
    const int end = std::min(store.size(), store.firstBeyond(x.high()) + 1);
    return store.yExtent(begin, end);
}

Interval levelsOf(const QVector<CurveBound>& bounds, bool isLogarithmic)
{
    Interval levels;
    for (const CurveBound& bound : bounds) {
        for (const QPointF& point : bound.points) {
            if (!isLogarithmic || point.y() > 0)
                levels.include(point.y());
        }
    }
    return levels;
}

/// With some space, so that limits do not lie on the frame. The space never reaches beyond zero: an axis of what cannot
/// be negative would spend half of its length below.
Interval withLevels(Interval values, const Interval& levels, bool isLogarithmic)
{
    if (levels.isEmpty())
        return values;
    values.include(levels);
    const double pad = isLogarithmic ? 0 : 0.02 * values.extent();
    if (levels.low <= values.low)
        values.include(paddedLimit(values.low, -pad));
    if (levels.high >= values.high)
        values.include(paddedLimit(values.high, pad));
    return values;
}

} // namespace

void PlotView::fit(const PlotContent& content, int yTicks)
{
    if (m_isAutomaticX || m_x.isLogarithmic() != isLogarithmic(content.xKind))
        fitX(content);
    for (const PlotSide side : {LeftSide, RightSide}) {
        if (m_isAutomaticY || m_y[side].isLogarithmic() != isLogarithmic(content.yKinds[side]))
            fitY(content, side, yTicks);
    }
}

void PlotView::fitX(const PlotContent& content)
{
    Interval extent;
    for (const PlotCurveItem* curve : content.visibleCurves())
        extent.include(curve->store().xExtent());
    if (m_follow > 0) {
        const double begin = extent.isEmpty() ? 0 : std::max(extent.low, extent.high - m_follow);
        // Rounding must not leave the last point outside.
        extent = {begin, std::max(begin + m_follow, extent.isEmpty() ? 0 : extent.high)};
    }
    // The moment of a single point: without it, an axis of dates would show years.
    const bool isOfTime = content.xKind == AxisScale::Date || content.xKind == AxisScale::Duration;
    if (isOfTime && !extent.isEmpty() && extent.extent() <= 0)
        extent.high = extent.low + momentSeconds;
    m_x = AxisView(extent, isLogarithmic(content.xKind));
}

void PlotView::fitY(const PlotContent& content, PlotSide side, int ticks)
{
    const AxisScale::Kind kind = content.yKinds[side];
    Interval values;
    Interval levels;
    for (const PlotCurveItem* curve : content.visibleCurves()) {
        if (sideOf(curve) != side)
            continue;
        values.include(valuesInSight(curve->store(), m_x));
        levels.include(levelsOf(curve->bounds(), isLogarithmic(kind)));
    }
    const AxisScale scale(withLevels(values, levels, isLogarithmic(kind)), kind, AxisScale::AtTicks, ticks);
    m_y[side] = AxisView({scale.low(), scale.high()}, isLogarithmic(kind));
}

void PlotView::setWindow(const Interval& x, const Interval& y)
{
    const AxisView before = m_y[LeftSide];
    m_isAutomaticX = m_isAutomaticY = false;
    m_x = AxisView(x, m_x.isLogarithmic());
    m_y[LeftSide] = AxisView(y, before.isLogarithmic());
    // The same part of the axis on the right.
    const double begin = before.position(m_y[LeftSide].low());
    const double end = before.position(m_y[LeftSide].high());
    const AxisView& right = m_y[RightSide];
    m_y[RightSide] = AxisView({right.value(begin), right.value(end)}, right.isLogarithmic());
}

void PlotView::zoom(double factor, double x, double y, int axes)
{
    if (axes & X) {
        m_isAutomaticX = false;
        m_x = m_x.zoomed(factor, x);
    }
    if (axes & Y) {
        m_isAutomaticY = false;
        for (AxisView& view : m_y)
            view = view.zoomed(factor, y);
    }
}

void PlotView::pan(double x, double y)
{
    if (x != 0) {
        m_isAutomaticX = false;
        m_x = m_x.panned(x);
    }
    if (y != 0) {
        m_isAutomaticY = false;
        for (AxisView& view : m_y)
            view = view.panned(y);
    }
}

} // namespace uiutils
