#pragma once

#include <QFontMetricsF>
#include <QPainter>
#include <QPen>
#include <QPointF>
#include <QString>
#include <QStringList>
#include <QVector>

namespace uiutils {

/// An entry of the legend: a sample of the line and its text; without a pen, only the text.
struct LegendEntry
{
    QString text;
    QPen pen;
};

/// Lines of text that follow each other, from `begin` up to, but not including, `end`.
struct LineRange
{
    int begin = 0;
    int end = 0;

    int count() const { return end - begin; }
};

/// The legend of a plot: all entries in columns, row by row. One that is wider than half the legend has rows of its
/// own, and is wrapped. Only in a legend of more than 200 lines texts are cut; if it still has more, its last entry
/// says how many are left out.
class PlotLegend
{
public:
    struct Place
    {
        QPen pen;
        QStringList lines;
        int line;
        double left;
        double width;
    };

    PlotLegend() = default;
    /// `unit` is the plot's measure of distances. `omitted` entries are left out in any case.
    PlotLegend(
            const QVector<LegendEntry>& entries, int omitted, const QFontMetricsF& metrics, double unit, double width);

    int lineCount() const { return m_lineCount; }
    const QVector<Place>& places() const { return m_places; }

    /// The legend in ranges of at most `lines` lines that tear no entry; more only for an entry with more.
    QVector<LineRange> parts(int lines) const;

    /// Draws the lines of a range in the painter's font, the first one at `topLeft`.
    void draw(QPainter& painter, const QPointF& topLeft, LineRange range, const QColor& ink) const;

private:
    void place(const QVector<LegendEntry>& entries, const QFontMetricsF& metrics, bool wraps);
    void placeRow(const LegendEntry& entry, const QFontMetricsF& metrics, bool wraps);
    void cut(int omitted);

    double m_unit = 0;
    double m_width = 0;
    int m_lineCount = 0;
    QVector<Place> m_places;
};

} // namespace uiutils
