#include "writers/plots/plotdata_p.h"

#include "core/itemids_p.h"

#include <kiv/kivclientinterface.h>
#include <kiv/kivclientitem.h>

#include <algorithm>
#include <cmath>

namespace uiutils {

namespace {

const QLatin1String xEnd("_x:doubleARRAY:");
const QLatin1String yEnd("_y:doubleARRAY:");

/// A label or unit, cut to a length that every plot has space for: a service may hold megabytes, and each character is
/// measured.
QString shownText(const QString& text)
{
    constexpr int longest = 200;
    return text.size() <= longest ? text : text.left(longest - 1) + QChar(0x2026);
}

AxisScale::Kind scaleKind(const KIVClientItem& item)
{
    return item.getAttribute(QStringLiteral("scale")).toString() == QLatin1String("log") ? AxisScale::Logarithmic
                                                                                         : AxisScale::Linear;
}

void addLimit(PlotData& data, const KIVClientItem& item, const QString& attribute, PlotLimit::Kind kind)
{
    bool isNumber = false;
    const double value = item.getAttribute(attribute).toDouble(&isNumber);
    if (!isNumber || !std::isfinite(value))
        return;
    const bool isKnown = std::any_of(data.limits.cbegin(), data.limits.cend(),
            [&](const PlotLimit& limit) { return limit.kind == kind && limit.value == value; });
    if (!isKnown)
        data.limits.append({kind, value, shownText(item.getUnitString())});
}

void addCurve(PlotData& data, const KIVClientItem& x, const KIVClientItem& y)
{
    if (data.curves.isEmpty()) {
        data.xLabel = shownText(x.getLabel());
        data.xUnit = shownText(x.getUnitString());
        data.xKind = scaleKind(x);
        data.yKind = scaleKind(y);
    }
    const QString label = y.getLabel().isEmpty() ? y.getName() : y.getLabel();
    data.curves.append({shownText(label), shownText(y.getUnitString()), x.getValue().toList(), y.getValue().toList()});
    addLimit(data, y, QStringLiteral("lowerLimit"), PlotLimit::Lower);
    addLimit(data, y, QStringLiteral("upperLimit"), PlotLimit::Upper);
}

/// Collects the points of one pixel column.
class Column
{
public:
    bool isEmpty() const { return m_count == 0; }

    void take(const QPointF& point)
    {
        if (m_count == 0)
            m_first = m_lowest = m_highest = {point, 0};
        if (point.y() < m_lowest.point.y())
            m_lowest = {point, m_count};
        if (point.y() > m_highest.point.y())
            m_highest = {point, m_count};
        m_last = {point, m_count};
        ++m_count;
    }

    void moveTo(QVector<QPointF>& stretch)
    {
        Entry entries[] = {m_first, m_lowest, m_highest, m_last};
        std::sort(std::begin(entries), std::end(entries),
                [](const Entry& a, const Entry& b) { return a.order < b.order; });
        int previous = -1;
        for (const Entry& entry : entries) {
            if (m_count > 0 && entry.order != previous)
                stretch += entry.point;
            previous = entry.order;
        }
        m_count = 0;
    }

private:
    struct Entry
    {
        QPointF point;
        int order = 0;
    };
    Entry m_first;
    Entry m_lowest;
    Entry m_highest;
    Entry m_last;
    int m_count = 0;
};

} // namespace

PlotExtent PlotData::extent() const
{
    PlotExtent extent;
    for (const PlotCurve& curve : curves) {
        const PlotExtent own = extentOf(curve);
        if (own.x.isEmpty())
            continue;
        extent.x.include(own.x.low);
        extent.x.include(own.x.high);
        extent.y.include(own.y.low);
        extent.y.include(own.y.high);
    }
    for (const PlotLimit& limit : limits) {
        if (yKind == AxisScale::Linear || limit.value > 0)
            extent.y.include(limit.value);
    }
    return extent;
}

PlotExtent PlotData::extentOf(const PlotCurve& curve) const
{
    PlotExtent extent;
    for (int i = 0; i < curve.size(); ++i) {
        const QPointF point = curve.point(i);
        if (!isDrawable(point))
            continue;
        extent.x.include(point.x());
        extent.y.include(point.y());
    }
    return extent;
}

bool PlotData::isDrawable(const QPointF& point) const
{
    return std::isfinite(point.x()) && std::isfinite(point.y()) && (xKind == AxisScale::Linear || point.x() > 0)
            && (yKind == AxisScale::Linear || point.y() > 0);
}

PlotData readPlotData(const QString& service)
{
    PlotData data;
    const KIVClientInterface* client = KIVClientInterface::getSessionBusClient(service);
    if (!client)
        return data;
    const QStringList ids = client->getItemIds(itemids::result);
    for (const QString& id : ids) {
        if (!id.endsWith(xEnd))
            continue;
        const KIVClientItem* x = client->getItem(id);
        const KIVClientItem* y = client->getItem(id.left(id.size() - xEnd.size()) + yEnd);
        if (x && y)
            addCurve(data, *x, *y);
    }
    return data;
}

QVector<QVector<QPointF>> visibleStretches(
        const PlotData& data, const PlotCurve& curve, const AxisScale& xScale, const AxisScale& yScale, int columns)
{
    QVector<QVector<QPointF>> stretches;
    QVector<QPointF> stretch;
    Column column;
    int currentColumn = -1;
    const auto endStretch = [&] {
        column.moveTo(stretch);
        if (!stretch.isEmpty())
            stretches += stretch;
        stretch.clear();
    };
    for (int i = 0; i < curve.size(); ++i) {
        const QPointF point = curve.point(i);
        if (!data.isDrawable(point)) {
            endStretch();
            continue;
        }
        const QPointF position(xScale.position(point.x()), yScale.position(point.y()));
        const int pixelColumn = int(qBound(0.0, position.x(), 1.0) * columns);
        if (pixelColumn != currentColumn)
            column.moveTo(stretch);
        currentColumn = pixelColumn;
        column.take(position);
    }
    endStretch();
    return stretches;
}

} // namespace uiutils
