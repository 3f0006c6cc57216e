#pragma once

#include "writers/plots/plotdata_p.h"
#include "writers/plots/plotlegend_p.h"

#include <QColor>
#include <QFontMetricsF>
#include <QPainter>
#include <QRectF>
#include <QSize>

namespace uiutils {

/// Draws a plot into a picture of any size: title row, legend, grid, axes with round ticks, limits, curves.
class PlotPainter
{
public:
    PlotPainter(QPainter& painter, const PlotData& data, const QSize& size, const QColor& background);

    void draw();

private:
    QFont scaledFont() const;
    QPen curvePen(int index) const;
    QPen limitPen() const;
    QVector<LegendEntry> legendEntries() const;
    QString yTitle() const;

    void layOut();
    void drawGrid();
    void drawTickLabels();
    void drawTitles();
    void drawLimits();
    void drawCurve(int index);

    double xAt(double value) const { return m_frame.left() + m_x.position(value) * m_frame.width(); }
    double yAt(double value) const { return m_frame.bottom() - m_y.position(value) * m_frame.height(); }

    QPainter& m_painter;
    const PlotData& m_data;
    QSizeF m_size;
    QColor m_background;
    double m_unit;
    QFontMetricsF m_metrics;
    PlotExtent m_extent;
    AxisScale m_x;
    AxisScale m_y;
    QRectF m_frame;
    PlotLegend m_legend;
    QPointF m_legendPlace;
};

} // namespace uiutils
