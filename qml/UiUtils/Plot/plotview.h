#pragma once

#include "axisview.h"
#include "plotcontent.h"

namespace uiutils {

/// The part of a plot that is in sight: chosen by the user, or automatic.
class PlotView
{
public:
    enum Axes { X = 1, Y = 2, Both = X | Y };

    const AxisView& x() const { return m_x; }
    const AxisView& y(PlotSide side) const { return m_y[side]; }

    bool isAutomatic() const { return m_isAutomaticX && m_isAutomaticY; }
    /// Whether the x axis runs with the points.
    bool isFollowing() const { return m_follow > 0 && m_isAutomaticX; }

    /// The width of the window at the end of the curves, in units of x; 0 for everything.
    void setFollow(double width) { m_follow = width > 0 ? width : 0; }
    double follow() const { return m_follow; }

    /// Lets the automatic axes show what there is, with values rounded to at most `yTicks` ticks.
    void fit(const PlotContent& content, int yTicks);

    void setAutomatic() { m_isAutomaticX = m_isAutomaticY = true; }
    void setWindow(const Interval& x, const Interval& y);
    /// Positions are parts of the axes, from the left and from below.
    void zoom(double factor, double x, double y, int axes);
    void pan(double x, double y);

    /// Whether both show the same.
    bool operator==(const PlotView& other) const
    {
        return m_x == other.m_x && m_y[LeftSide] == other.m_y[LeftSide] && m_y[RightSide] == other.m_y[RightSide]
                && m_follow == other.m_follow && m_isAutomaticX == other.m_isAutomaticX
                && m_isAutomaticY == other.m_isAutomaticY;
    }

private:
    void fitX(const PlotContent& content);
    void fitY(const PlotContent& content, PlotSide side, int ticks);

    AxisView m_x;
    AxisView m_y[2];
    double m_follow = 0;
    bool m_isAutomaticX = true;
    bool m_isAutomaticY = true;
};

} // namespace uiutils
