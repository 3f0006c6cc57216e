#pragma once

#include "writers/plots/plotdata_p.h"

#include <QString>
#include <QVector>

namespace uiutils {

/// The text of a plot that has its data itself: JSON, which a report document holds in place of a service's name.
QString plotText(const PlotData& data);

/// Whether a source is such a text.
bool isPlotText(const QString& source);

/// The data of a text. What it lacks, or has in another type, is as in a plot without it; nothing in it is trusted.
PlotData plotOfText(const QString& text);
QVector<PlotArrays> arraysOfText(const QString& text);

} // namespace uiutils
