#include "writers/plots/plotlegend_p.h"

#include "writers/plots/plottext_p.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>

namespace uiutils {

namespace {

constexpr int mostLines = 200;
constexpr int mostLinesOfAnEntry = 8;
// In units: the sample of the line, the gap after it, the gap to the next entry.
constexpr double sampleWidth = 3;
constexpr double sampleGap = 0.5;
constexpr double entryGap = 1.5;

double textStart(const QPen& pen)
{
    return pen.style() == Qt::NoPen ? 0 : sampleWidth + sampleGap;
}

} // namespace

PlotLegend::PlotLegend(
        const QVector<LegendEntry>& entries, int omitted, const QFontMetricsF& metrics, double unit, double width)
    : m_unit(unit)
    , m_width(width)
{
    place(entries, metrics, true);
    if (m_lineCount > mostLines)
        place(entries, metrics, false);
    if (m_lineCount > mostLines || omitted > 0)
        cut(omitted);
}

void PlotLegend::place(const QVector<LegendEntry>& entries, const QFontMetricsF& metrics, bool wraps)
{
    m_places.clear();
    m_lineCount = 0;
    const auto widthOf = [&](const LegendEntry& entry) {
        return metrics.horizontalAdvance(entry.text) + (textStart(entry.pen) + entryGap) * m_unit;
    };
    const double half = (m_width + entryGap * m_unit) / 2;
    double columnWidth = 1;
    for (const LegendEntry& entry : entries)
        columnWidth = widthOf(entry) <= half ? std::max(columnWidth, widthOf(entry)) : columnWidth;
    const int columns = std::max(1, int((m_width + entryGap * m_unit) / columnWidth));
    int column = columns;
    for (const LegendEntry& entry : entries) {
        if (widthOf(entry) > half) {
            placeRow(entry, metrics, wraps);
            column = columns;
            continue;
        }
        column = column >= columns ? 0 : column;
        if (column == 0)
            ++m_lineCount;
        const double width = columnWidth - entryGap * m_unit;
        m_places.append({entry.pen, {entry.text}, m_lineCount - 1, column * columnWidth, width});
        ++column;
    }
}

void PlotLegend::placeRow(const LegendEntry& entry, const QFontMetricsF& metrics, bool wraps)
{
    const double room = m_width - textStart(entry.pen) * m_unit;
    const QStringList lines = wrappedLines(entry.text, metrics, room, wraps ? mostLinesOfAnEntry : 1);
    m_places.append({entry.pen, lines, m_lineCount, 0, m_width});
    m_lineCount += lines.size();
}

/// Has the last line say how many entries are left out.
void PlotLegend::cut(int omitted)
{
    while (!m_places.isEmpty() && m_places.constLast().line + m_places.constLast().lines.size() > mostLines - 1) {
        m_places.removeLast();
        ++omitted;
    }
    const Place last = m_places.isEmpty() ? Place {QPen(Qt::NoPen), {}, 0, 0, 0} : m_places.constLast();
    const int line = last.line + last.lines.size();
    const QString text = QCoreApplication::translate("PlotImage", "and %1 more").arg(QLocale().toString(omitted));
    m_places.append({QPen(Qt::NoPen), {text}, line, 0, m_width});
    m_lineCount = line + 1;
}

QVector<LineRange> PlotLegend::parts(int lines) const
{
    QVector<LineRange> parts;
    for (const Place& place : m_places) {
        const int end = place.line + place.lines.size();
        if (parts.isEmpty() || end - parts.constLast().begin > lines)
            parts.append({place.line, end});
        parts.last().end = std::max(parts.constLast().end, end);
    }
    return parts;
}

void PlotLegend::draw(QPainter& painter, const QPointF& topLeft, LineRange range, const QColor& ink) const
{
    const QFontMetricsF metrics(painter.font());
    const double height = metrics.height();
    for (const Place& place : m_places) {
        if (place.line < range.begin || place.line >= range.end)
            continue;
        const QPointF at = topLeft + QPointF(place.left, (place.line - range.begin) * height);
        const QPointF start = at + QPointF(0, height / 2);
        painter.setPen(place.pen);
        if (place.pen.style() != Qt::NoPen)
            painter.drawLine(start, start + QPointF(sampleWidth * m_unit, 0));
        painter.setPen(ink);
        const QPointF indent(textStart(place.pen) * m_unit, metrics.ascent());
        for (int i = 0; i < place.lines.size(); ++i)
            painter.drawText(at + indent + QPointF(0, i * height), place.lines.at(i));
    }
}

} // namespace uiutils
