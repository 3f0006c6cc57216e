#pragma once

#include "writers/plots/interval_p.h"

#include <QPointF>
#include <QVector>

#include <functional>
#include <limits>

namespace uiutils {

class CurvePoints;

/// The points of a live curve, with what is needed to draw a million of them in each frame without walking all: for
/// each block of points, and each block of blocks, the first, the last, the lowest and the highest one.
///
/// A point that is not finite, or not positive along a logarithmic axis, interrupts the curve.
class CurveStore
{
public:
    /// Which axes are logarithmic.
    void setScales(bool isLogarithmicX, bool isLogarithmicY);

    void append(const QPointF& point);
    void replace(const QVector<QPointF>& points);
    /// Discards the oldest points.
    void discard(int count);

    int size() const { return m_points.size(); }
    const QPointF& at(int index) const { return m_points.at(index); }
    bool isDrawable(const QPointF& point) const;

    /// Of all points that can be drawn.
    const Interval& xExtent() const { return m_x; }
    const Interval& yExtent() const { return m_y; }
    /// Of the points from `begin` up to, but not including, `end`.
    Interval yExtent(int begin, int end) const;

    /// Whether x never falls, so that a column of the picture is a range of points.
    bool isAscending() const { return m_isAscending; }
    /// The first point of an ascending curve, from `begin` on, that is not left of `x`; the size if there is none.
    int firstFrom(double x, int begin = 0) const;
    /// The same for the first point that is right of `x`.
    int firstBeyond(double x, int begin = 0) const;
    /// The first point of the first line that leads over `x`, in the order of the points; -1 if none does.
    int firstLineAt(double x) const;

    /// Hands on what is worth drawing of these points, which all are in the column at `position`.
    void feed(CurvePoints& points, double position, int begin, int end) const;
    /// The same for all points, in their order, whatever their x. `positionOf(x)` is what `points` expects.
    void feedAll(CurvePoints& points, const std::function<double(double)>& positionOf) const;

private:
    struct Block
    {
        int first = -1;
        int last = -1;
        int lowest = -1;
        int highest = -1;
        bool isInterrupted = false;
        Interval x;
    };

    void take(int index);
    void rebuild();
    void enter(Block& block, int index, bool isDrawable) const;
    int blockLevel(int index, int end, bool mayBeInterrupted) const;
    bool feedBlock(CurvePoints& points, double position, const Block& block) const;
    template<typename Condition> int largestBlock(int index, const Condition& isWanted) const;

    static constexpr int levels = 5;

    QVector<QPointF> m_points;
    QVector<Block> m_levels[levels];
    Interval m_x;
    Interval m_y;
    // Gaps at the beginning are left of everything.
    double m_lastX = -std::numeric_limits<double>::infinity();
    bool m_isAscending = true;
    bool m_isLogarithmicX = false;
    bool m_isLogarithmicY = false;
};

} // namespace uiutils
