#pragma once

#include "writers/plots/plotlayout_p.h"

#include <QColor>
#include <QVector>

#include <memory>

class ReportItem;

namespace uiutils {

/// The items that show a plot on pages, as lines and text: the plot with its title and the first lines of its legend,
/// then the rest of a long legend in parts that pages have room for. The caller owns them.
QVector<ReportItem*> plotItems(const std::shared_ptr<const PlotLayout>& layout, const QColor& background);

} // namespace uiutils
