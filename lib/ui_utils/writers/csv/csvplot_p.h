#pragma once

#include "writers/csv/csvfield_p.h"

namespace uiutils {

/// Writes all points of a service's curves: two columns for each curve, as spreadsheets draw them, and one for each limit.
void writePlotPoints(const QString& service, CsvLines& lines);

} // namespace uiutils
