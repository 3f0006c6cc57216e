#pragma once

#include "plotcontent.h"
#include "plotview.h"

#include <QString>
#include <QVector>

namespace uiutils {

/// What one curve has at the cursor.
struct PlotReadout
{
    const PlotCurveItem* curve = nullptr;
    /// NaN where the curve has no line.
    double y = 0;
    /// With its unit; a dash for no value.
    QString text;
    int status = Status::None;
};

/// A value with as many digits as can be distinguished in sight; times in words, others with their unit.
QString plotValueText(double value, const AxisView& view, AxisScale::Kind kind, const QString& unit);
QString plotXText(const PlotContent& content, const PlotView& view, double x);

/// Of the visible curves.
QVector<PlotReadout> plotReadouts(const PlotContent& content, const PlotView& view, double x);
/// All of these as one line; empty for no place.
QString plotReadoutText(const PlotContent& content, const PlotView& view, double x);
/// How far two places are apart, and what each curve has gained on the way.
QString plotDeltaText(const PlotContent& content, const PlotView& view, double from, double to);
/// Each visible curve with its extent and verdict, then what is at the cursor.
QString plotDescription(const PlotContent& content, const PlotView& view);

/// "Pass", "Marginal", "Fail"; empty for none.
QString plotVerdictText(int status);

} // namespace uiutils
