#pragma once

#include "plotcontent.h"
#include "plotview.h"
#include "writers/plots/plotdata_p.h"

namespace uiutils {

/// What a live plot shows at present as the plot of a report: its window, curves with what exceeds their limits,
/// limits, masks, markers.
PlotData reportPlot(const PlotContent& content, const PlotView& view);

} // namespace uiutils
