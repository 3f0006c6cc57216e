#pragma once

#include "writers/plots/plotdata_p.h"
#include "writers/plots/plotlegend_p.h"

#include <QColor>
#include <QFont>
#include <QFontMetricsF>
#include <QPen>
#include <QPointF>
#include <QRectF>
#include <QSize>
#include <QString>
#include <QStringList>

#include <memory>

namespace uiutils {

/// The size of a drawing in pixels: the default of 600 x 400 for a side below 1, else from 50 to 4,000.
QSize plotSize(int width, int height);

/// The colour of the curve with that number, which is distinguishable from the seven others with any colour vision.
QColor plotCurveColor(int index);

/// Where the parts of a plot are: title, axis titles, the frame of the curves with its scales, legend. One layout
/// serves every picture, of any resolution, and pages. Lengths are in pixels of a page, 1/96 inch.
class PlotLayout
{
public:
    /// For a drawing of `size`. It becomes higher for title and legend if these would take half of the curves' height.
    PlotLayout(std::shared_ptr<const PlotData> data, const QString& title, const QSize& size);

    const PlotData& data() const { return *m_data; }
    const std::shared_ptr<const PlotData>& sharedData() const { return m_data; }
    QString title() const { return m_title; }

    /// The size with the lines of the legend that are below the plot; without a range, with all of them.
    QSizeF size() const { return sizeWith({0, m_legend.lineCount()}); }
    QSizeF sizeWith(LineRange legend) const;
    /// Of these lines of the legend alone.
    QSizeF legendSize(LineRange lines) const { return {m_width, lines.count() * m_line}; }

    /// The measure of all distances.
    double unit() const { return m_unit; }
    double lineHeight() const { return m_line; }
    QFont font() const { return m_font; }
    QFont titleFont() const;
    QFontMetricsF metrics() const { return QFontMetricsF(m_font); }

    const QStringList& titleLines() const { return m_titleLines; }
    /// The top of the row of axis titles.
    double axisTitleTop() const { return m_axisTitleTop; }
    QString axisTitle(PlotSide side) const;
    QString xTitle() const;

    const QRectF& frame() const { return m_frame; }
    const AxisScale& x() const { return m_x; }
    const AxisScale& y(PlotSide side) const { return side == LeftSide ? m_left : m_right; }
    double xAt(double value) const { return m_frame.left() + m_x.position(value) * m_frame.width(); }
    double yAt(double value, PlotSide side) const
    {
        return m_frame.bottom() - y(side).position(value) * m_frame.height();
    }

    const PlotLegend& legend() const { return m_legend; }
    QPointF legendPlace() const { return {0, m_height - m_legend.lineCount() * m_line}; }

    /// The colour and dashes of a curve, which a print without colours distinguishes too.
    QPen curvePen(int index) const;
    QPen limitPen() const;
    /// Of what exceeds a limit: wider than the curve, so that it can be seen without colours.
    QPen excessPen(bool isFailure) const;
    QPen markPen() const;

private:
    bool needsLegend() const;
    bool fits(PlotSide side) const;
    QString namedAxisTitle(PlotSide side) const;
    QVector<LegendEntry> legendEntries() const;
    QVector<LegendEntry> curveEntries() const;
    QVector<LegendEntry> excessEntries() const;
    QVector<LegendEntry> markEntries() const;
    double labelWidth(const AxisScale& scale) const;
    void layOut(const QSize& size);

    std::shared_ptr<const PlotData> m_data;
    QString m_title;
    double m_width;
    double m_unit;
    QFont m_font;
    double m_line;
    AxisScale m_x;
    AxisScale m_left;
    AxisScale m_right;
    QStringList m_titleLines;
    double m_axisTitleTop = 0;
    QRectF m_frame;
    PlotLegend m_legend;
    double m_height = 0;
};

} // namespace uiutils
