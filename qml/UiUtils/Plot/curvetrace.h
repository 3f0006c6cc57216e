#pragma once

#include "axisview.h"
#include "curvejudge.h"
#include "curvestore.h"

#include <QPointF>
#include <QVector>

namespace uiutils {

/// A connected part of a curve that is judged alike, in positions 0 to 1 along both axes.
struct TracePart
{
    Status::Code status = Status::None;
    QVector<QPointF> points;

    bool operator==(const TracePart& other) const { return status == other.status && points == other.points; }
};

/// What can be seen of a curve.
struct CurveTrace
{
    /// At least two points each; a part that goes on begins where the former ends.
    QVector<TracePart> lines;
    /// Points without neighbours, and points beyond a bound that no line shows.
    QVector<TracePart> dots;

    bool operator==(const CurveTrace& other) const { return lines == other.lines && dots == other.dots; }
};

/// A curve and what it is judged by.
struct CurveSource
{
    const CurveStore& store;
    const CurveJudge& judge;
    const CurveVerdicts& verdicts;
};

/// What `columns` columns show of a curve, cut at the window's edges: its points thinned out by column, parted where it
/// crosses its bounds. Neither a peak nor a point that exceeds a bound is lost.
CurveTrace curveTrace(const CurveSource& curve, const AxisView& x, const AxisView& y, int columns);

} // namespace uiutils
