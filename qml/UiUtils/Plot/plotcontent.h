#pragma once

#include "plotcolors.h"
#include "plotcurveitem.h"
#include "plotmarkeritem.h"
#include "writers/plots/axisscale_p.h"
#include "writers/plots/plotdata_p.h"

#include <QFont>
#include <QString>
#include <QVector>

#include <limits>

namespace uiutils {

/// What a LivePlot is to show, whatever part of it is in sight.
struct PlotContent
{
    QVector<PlotCurveItem*> curves;
    QVector<PlotMarkerItem*> markers;
    QString xLabel;
    QString xUnit;
    AxisScale::Kind xKind = AxisScale::Linear;
    /// One for each side.
    AxisScale::Kind yKinds[2] = {AxisScale::Linear, AxisScale::Linear};
    /// Empty for the usual one.
    QString ownEmptyText;
    QString fontFamily;
    double textSize = 12;
    double lineWidth = 1.7;
    bool hasLegend = true;
    bool hasReadout = true;
    double cursorX = std::numeric_limits<double>::quiet_NaN();
    const PlotColors* colors = nullptr;

    QFont font() const;
    QString emptyText() const;
    QVector<PlotCurveItem*> visibleCurves() const;
    bool has(PlotSide side) const;
    QColor colorOf(const PlotCurveItem* curve) const;
    QColor verdictColor(int status) const;
    /// The width of a curve's line where it is judged so: what exceeds a limit is wider, and not only coloured.
    double widthOf(const PlotCurveItem* curve, int status) const;
};

inline PlotSide sideOf(const PlotCurveItem* curve)
{
    return curve->rightAxis() ? RightSide : LeftSide;
}

} // namespace uiutils
