#pragma once

#include <QFontMetricsF>
#include <QPainter>
#include <QPen>
#include <QPointF>
#include <QString>
#include <QVector>

namespace uiutils {

/// An entry of the legend: a sample of the line and its text; without a pen, only the text.
struct LegendEntry
{
    QString text;
    QPen pen;
};

/// The legend of a plot: entries side by side in at most three rows. If there are more, the last entry says how many.
class PlotLegend
{
public:
    struct Place
    {
        LegendEntry entry;
        int row;
        double left;
        double width;
    };

    PlotLegend() = default;
    /// `unit` is the plot's measure of distances, `width` the width of a row; both in pixels.
    PlotLegend(const QVector<LegendEntry>& entries, const QFontMetricsF& metrics, double unit, double width);

    int rowCount() const { return m_places.isEmpty() ? 0 : m_places.constLast().row + 1; }
    const QVector<Place>& places() const { return m_places; }

    /// Draws the entries in the painter's font, the first row at `topLeft`.
    void draw(QPainter& painter, const QPointF& topLeft, const QColor& ink) const;

private:
    bool place(const LegendEntry& entry, const QFontMetricsF& metrics);
    void placeCount(int total, const QFontMetricsF& metrics);

    double m_unit = 0;
    double m_width = 0;
    QVector<Place> m_places;
};

} // namespace uiutils
