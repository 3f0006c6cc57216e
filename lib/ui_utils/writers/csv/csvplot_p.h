#pragma once

#include "writers/csv/csvfield_p.h"

namespace uiutils {

struct PlotData;

/// Writes the points of a plot: two columns for each curve, as spreadsheets draw them, and one for each limit.
void writePlotPoints(const PlotData& data, CsvLines& lines);

} // namespace uiutils
