#pragma once

#include "writers/plots/plotlayout_p.h"

#include <QByteArray>
#include <QColor>
#include <QPainter>

namespace uiutils {

/// Draws a plot: title, grid, axes with round ticks, curves, limits, legend. The same drawing at every resolution and
/// on every device.
class PlotPainter
{
public:
    /// Curves show `resolution` columns for each pixel of the layout.
    PlotPainter(QPainter& painter, const PlotLayout& layout, const QColor& background, double resolution);

    /// Draws the plot at (0, 0), with the lines of the legend below.
    void draw(LineRange legend);

private:
    void drawTitles();
    void drawNoData();
    void drawRight(const QPointF& baseLine, const QString& text);
    void drawGrid();
    void drawTickLabels();
    void drawTickLabels(PlotSide side);
    void drawLimits(const QPen& pen);
    void drawCurve(int index);
    QVector<QVector<QPointF>> placedStretches(const PlotCurve& curve) const;
    void drawExcesses(const PlotCurve& curve);
    void drawMarks();
    double columnsOfAPixel() const;

    QPainter& m_painter;
    const PlotLayout& m_layout;
    const PlotData& m_data;
    QRectF m_frame;
    double m_unit;
    QColor m_background;
    double m_resolution;
};

/// A colour by its name in CSS or "#rrggbb"; white for an empty or unknown one.
QColor plotBackground(const QString& name);

/// A PNG of the plot with its whole legend, with `scale` pixels for each pixel of the layout; fewer if it would have
/// more than 4,000 along a side.
QByteArray plotPicture(const PlotLayout& layout, const QColor& background, int scale);

} // namespace uiutils
