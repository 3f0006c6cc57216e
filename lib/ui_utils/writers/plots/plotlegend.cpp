#include "writers/plots/plotlegend_p.h"

#include <QCoreApplication>

#include <algorithm>

namespace uiutils {

namespace {

constexpr int rowsAtMost = 3;
// In units: the sample of the line, the gap after it, the gap to the next entry.
constexpr double sampleWidth = 2;
constexpr double sampleGap = 0.5;
constexpr double entryGap = 1.5;

double textStart(const LegendEntry& entry)
{
    return entry.pen.style() == Qt::NoPen ? 0 : sampleWidth + sampleGap;
}

} // namespace

PlotLegend::PlotLegend(const QVector<LegendEntry>& entries, const QFontMetricsF& metrics, double unit, double width)
    : m_unit(unit)
    , m_width(width)
{
    for (const LegendEntry& entry : entries) {
        if (!place(entry, metrics)) {
            placeCount(entries.size(), metrics);
            return;
        }
    }
}

/// Returns false if the rows are full.
bool PlotLegend::place(const LegendEntry& entry, const QFontMetricsF& metrics)
{
    const double width = metrics.horizontalAdvance(entry.text) + (textStart(entry) + entryGap) * m_unit;
    int row = 0;
    double left = 0;
    if (!m_places.isEmpty()) {
        row = m_places.constLast().row;
        left = m_places.constLast().left + m_places.constLast().width;
        if (left + width > m_width) {
            ++row;
            left = 0;
        }
    }
    if (row >= rowsAtMost)
        return false;
    m_places.append({entry, row, left, width});
    return true;
}

/// Removes entries until there is space to say how many are left out.
void PlotLegend::placeCount(int total, const QFontMetricsF& metrics)
{
    const QString text = QCoreApplication::translate("PlotImage", "and %1 more");
    while (!place({text.arg(total - m_places.size()), QPen(Qt::NoPen)}, metrics))
        m_places.removeLast();
}

void PlotLegend::draw(QPainter& painter, const QPointF& topLeft, const QColor& ink) const
{
    const QFontMetricsF metrics(painter.font(), painter.device());
    const double line = metrics.height();
    for (const Place& place : m_places) {
        const QPointF start(topLeft.x() + place.left, topLeft.y() + (place.row + 0.5) * line);
        painter.setPen(place.entry.pen);
        painter.drawLine(start, start + QPointF(sampleWidth * m_unit, 0));
        const double indent = textStart(place.entry) * m_unit;
        const double room = std::min(place.width, m_width - place.left) - indent;
        const QRectF box(start.x() + indent, start.y() - line / 2, room, line);
        painter.setPen(ink);
        painter.drawText(
                box, Qt::AlignLeft | Qt::AlignVCenter, metrics.elidedText(place.entry.text, Qt::ElideRight, room));
    }
}

} // namespace uiutils
