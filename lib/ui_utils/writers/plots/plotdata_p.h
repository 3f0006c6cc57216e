#pragma once

#include "writers/plots/axisscale_p.h"

#include <QPointF>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

#include <algorithm>

namespace uiutils {

/// The values of points that can be drawn.
struct PlotExtent
{
    Interval x;
    Interval y;
};

/// Which side of a plot has the axis of a value.
enum PlotSide { LeftSide, RightSide };

/// What of a curve exceeds its limits.
struct PlotExcess
{
    /// Whether it fails; otherwise it is marginal.
    bool isFailure = true;
    /// As those of the curve.
    QVector<QPointF> points;
};

/// A place on the x axis that is kept in sight.
struct PlotMark
{
    QString label;
    double x = 0;
};

/// One curve of a plot.
struct PlotCurve
{
    QString label;
    QString unit;
    PlotSide side = LeftSide;
    /// A mask is a limit that is not the same everywhere.
    bool isMask = false;
    /// How many points the service has: the shorter array determines.
    int size = 0;
    /// Of all of them.
    PlotExtent extent;
    /// As many of them as pictures can show, with CurvePoints::interruption() where some cannot be drawn.
    QVector<QPointF> points;
    /// All of them, for files of data; empty where `points` are all, or where they are too many.
    QVector<QPointF> all;
    QVector<PlotExcess> excesses;
};

/// A level that the curves are compared with.
struct PlotLimit
{
    enum Kind { Lower, Upper };
    Kind kind;
    double value;
    QString unit;
    PlotSide side = LeftSide;
    /// Empty for one that its value names.
    QString label = {};
};

/// What an axis of values shows.
struct PlotAxis
{
    AxisScale::Kind kind = AxisScale::Linear;
    /// Of its curves: one on the left, those of all other curves on the right.
    QStringList units;
    /// The values that the axis shows; empty for those of its curves and limits.
    Interval window;
};

/// The plot as the service describes it.
struct PlotData
{
    QVector<PlotCurve> curves;
    QVector<PlotLimit> limits;
    /// How many curves a service has beyond those.
    int omitted = 0;
    QString xLabel;
    /// "s" where the axis is one of times.
    QString xUnit;
    /// The unit of the service's values, as users read it.
    QString xOwnUnit;
    /// How many seconds that unit is; 0 for a unit that is not one of time.
    double xSeconds = 0;
    AxisScale::Kind xKind = AxisScale::Linear;
    /// As that of an axis of values.
    Interval xWindow;
    QVector<PlotMark> marks;
    /// One for each side.
    PlotAxis axes[2];

    bool has(PlotSide side) const { return side == LeftSide || !axes[side].units.isEmpty(); }
    Interval xExtent() const;
    /// Of the curves of a side, and of the limits.
    Interval yExtent(PlotSide side) const;
    /// Whether a point is finite, and positive along logarithmic axes.
    bool isDrawable(const QPointF& point, PlotSide side) const;
};

/// Where an axis ends that goes on by `pad` beyond a limit. It ends at zero where that is between: half an axis of
/// negative values says nothing about a throughput.
double paddedLimit(double limit, double pad);

/// Adds a curve from the arrays of a service: what pictures can show of it.
void addCurve(PlotData& data, PlotCurve curve, const QVariantList& xs, const QVariantList& ys);

/// Adds to an axis what a curve says of it.
void addUnit(PlotAxis& axis, const QString& unit);

/// A label or unit on one line, cut to a length that every plot has space for: a service may hold megabytes, and each
/// character is measured.
QString shownPlotText(const QString& text);

/// Reads the curves of a service: pairs of result arrays whose ids end in "_x:doubleARRAY:" and "_y:doubleARRAY:" and
/// agree before that. Empty if there is no such service. A source that is no name is the data themselves, see
/// plotsource_p.h.
PlotData readPlotData(const QString& source);

/// The arrays of one curve, shared with their service.
class PlotArrays
{
public:
    PlotArrays(const QVariantList& xs, const QVariantList& ys)
        : m_xs(xs)
        , m_ys(ys)
    {
    }

    /// The shorter array determines.
    int size() const { return std::min(m_xs.size(), m_ys.size()); }
    /// NaN for what is no number.
    QPointF point(int index) const;

private:
    QVariantList m_xs;
    QVariantList m_ys;
};

/// All points of the curves of readPlotData(), in their order and in the units of the source.
QVector<PlotArrays> readPlotArrays(const QString& source);

/// What `columns` columns can show of a curve: the connected stretches, in positions 0 to 1 along both axes.
QVector<QVector<QPointF>> visibleStretches(
        const PlotCurve& curve, const AxisScale& xScale, const AxisScale& yScale, int columns);

} // namespace uiutils
