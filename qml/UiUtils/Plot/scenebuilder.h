#pragma once

#include "plotcontent.h"
#include "plotframe.h"
#include "plotscene.h"
#include "plotview.h"

namespace uiutils {

/// Legend, titles, grid, scales: what changes less often than the curves.
SceneLayer plotBackdrop(const PlotContent& content, const PlotView& view, const PlotFrame& frame);

/// The lines of limits and masks with their labels.
SceneLayer plotLimits(const PlotContent& content, const PlotView& view, const PlotFrame& frame);

/// These, markers, cursor, readout.
SceneLayer plotOverlay(const PlotContent& content, const PlotView& view, const PlotFrame& frame);

/// The curves, with `resolution` columns for each pixel of the item.
QVector<SceneStroke> plotStrokes(
        const PlotContent& content, const PlotView& view, const PlotFrame& frame, double resolution);

} // namespace uiutils
