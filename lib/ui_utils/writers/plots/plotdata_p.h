#pragma once

#include "writers/plots/axisscale_p.h"

#include <QPointF>
#include <QString>
#include <QVariant>
#include <QVector>
#include <QtMath>

namespace uiutils {

/// One curve of a plot, with the points of the service: the shorter array determines how many there are.
struct PlotCurve
{
    QString label;
    QString unit;
    QVariantList xs;
    QVariantList ys;

    int size() const { return qMin(xs.size(), ys.size()); }
    /// A coordinate that is not a number is NaN.
    QPointF point(int index) const { return {number(xs.at(index)), number(ys.at(index))}; }

private:
    static double number(const QVariant& value)
    {
        bool isNumber = false;
        const double number = value.toDouble(&isNumber);
        return isNumber ? number : qQNaN();
    }
};

/// A level that the curves are compared with.
struct PlotLimit
{
    enum Kind { Lower, Upper };
    Kind kind;
    double value;
    QString unit;
};

/// The values that the axes of a plot have to show: those of points that can be drawn, and the limits.
struct PlotExtent
{
    Interval x;
    Interval y;
};

/// The plot as the service describes it.
struct PlotData
{
    QVector<PlotCurve> curves;
    QVector<PlotLimit> limits;
    QString xLabel;
    QString xUnit;
    AxisScale::Kind xKind = AxisScale::Linear;
    AxisScale::Kind yKind = AxisScale::Linear;

    PlotExtent extent() const;
    /// The same for the points of one curve only.
    PlotExtent extentOf(const PlotCurve& curve) const;
    /// Whether a point is finite, and positive along logarithmic axes.
    bool isDrawable(const QPointF& point) const;
};

/// Reads the curves of a service: pairs of result arrays whose ids end in "_x:doubleARRAY:" and "_y:doubleARRAY:" and
/// agree before that. Empty if there is no such service.
PlotData readPlotData(const QString& service);

/// Thins a curve out to what `columns` pixel columns can show. Of neighbouring points in one column only the first, the
/// lowest, the highest and the last remain, so that no spike is lost; a point that cannot be drawn interrupts the
/// curve. Returns the connected stretches, in positions 0 to 1 along both axes.
QVector<QVector<QPointF>> visibleStretches(
        const PlotData& data, const PlotCurve& curve, const AxisScale& xScale, const AxisScale& yScale, int columns);

} // namespace uiutils
