#pragma once

#include <QString>

namespace uiutils {

struct PlotData;

/// What those hear who do not see the plot: each curve and its extent.
QString plotInWords(const PlotData& data);

} // namespace uiutils
