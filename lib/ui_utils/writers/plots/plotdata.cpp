#include "writers/plots/plotdata_p.h"

#include "core/itemids_p.h"
#include "writers/plots/curvepoints_p.h"
#include "writers/plots/plotsource_p.h"

#include <kiv/kivclientinterface.h>
#include <kiv/kivclientitem.h>

#include <algorithm>
#include <cmath>

namespace uiutils {

namespace {

const QLatin1String xEnd("_x:doubleARRAY:");
const QLatin1String yEnd("_y:doubleARRAY:");

constexpr int mostCurves = 500;
// Those of the largest picture, twice.
constexpr int columnsOfACurve = 8192;
constexpr int columnsOfAllCurves = 8 * columnsOfACurve;

// Nobody measures for thirty years: seconds between these two are points in time.
constexpr double year2000 = 946684800;
constexpr double year2100 = 4102444800;
// What is shorter reads well as a number of seconds.
constexpr double shortestDuration = 120;

/// Characters that break a line, or that turn round what follows them.
bool disturbsLine(QChar c)
{
    return c.category() == QChar::Other_Control || c.category() == QChar::Separator_Line
            || c.category() == QChar::Separator_Paragraph || (c >= QChar(0x202a) && c <= QChar(0x202e))
            || (c >= QChar(0x2066) && c <= QChar(0x2069));
}

/// NaN for what is not a number.
double number(const QVariant& value)
{
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    return isNumber ? number : qQNaN();
}

AxisScale::Kind scaleKind(const KIVClientItem& item)
{
    const QString scale = item.getAttribute(QStringLiteral("scale")).toString();
    return scale == QLatin1String("log") ? AxisScale::Logarithmic : AxisScale::Linear;
}

AxisScale::Kind xScaleKind(const KIVClientItem& item)
{
    const QString scale = item.getAttribute(QStringLiteral("scale")).toString();
    return scale == QLatin1String("date")        ? AxisScale::Date
            : scale == QLatin1String("duration") ? AxisScale::Duration
                                                 : scaleKind(item);
}

/// What the service says, whatever users read. A formatter's name ends in the unit that it has from the service.
QString sourceUnit(const KIVClientItem& item)
{
    const QString own = item.getAttribute(QStringLiteral("sourceUnit")).toString();
    const QString named = own.isEmpty()
            ? item.getAttribute(QStringLiteral("formatter")).toString().section(QLatin1Char(':'), 1)
            : own;
    return named.isEmpty() ? item.getUnitString() : named;
}

/// The seconds of a unit; 0 for a unit that is not one of time.
double secondsOf(const QString& unit)
{
    static const std::pair<const char*, double> units[] = {{"s", 1}, {"ms", 1e-3}, {"us", 1e-6}, {"\u00b5s", 1e-6},
            {"ns", 1e-9}, {"min", 60}, {"h", 3600}, {"d", 86400}};
    for (const auto& [name, seconds] : units) {
        if (unit == QString::fromUtf8(name))
            return seconds;
    }
    return 0;
}

void addLimit(PlotData& data, const KIVClientItem& item, PlotSide side, const QString& attribute, PlotLimit::Kind kind)
{
    const double value = number(item.getAttribute(attribute));
    if (!std::isfinite(value))
        return;
    const bool isKnown = std::any_of(data.limits.cbegin(), data.limits.cend(),
            [&](const PlotLimit& limit) { return limit.kind == kind && limit.value == value && limit.side == side; });
    if (!isKnown)
        data.limits.append({kind, value, shownPlotText(item.getUnitString()), side, {}});
}

/// The first unit is on the left, together with curves without one; all others are on the right.
PlotSide sideOf(const PlotData& data, const QString& unit)
{
    const QStringList& left = data.axes[LeftSide].units;
    return unit.isEmpty() || left.isEmpty() || left.contains(unit) ? LeftSide : RightSide;
}

void addPair(PlotData& data, const KIVClientItem& x, const KIVClientItem& y)
{
    if (data.curves.isEmpty()) {
        data.xLabel = shownPlotText(x.getLabel());
        data.xUnit = shownPlotText(x.getUnitString());
        data.xOwnUnit = data.xUnit;
        data.xSeconds = secondsOf(sourceUnit(x));
        data.xKind = xScaleKind(x);
        data.axes[LeftSide].kind = scaleKind(y);
    }
    PlotCurve curve;
    curve.label = shownPlotText(y.getLabel().isEmpty() ? y.getName() : y.getLabel());
    curve.unit = shownPlotText(y.getUnitString());
    curve.side = sideOf(data, curve.unit);
    curve.isMask = y.getAttribute(QStringLiteral("mask")).toBool();
    PlotAxis& axis = data.axes[curve.side];
    if (curve.side == RightSide && axis.units.isEmpty())
        axis.kind = scaleKind(y);
    addUnit(axis, curve.unit);
    addLimit(data, y, curve.side, QStringLiteral("lowerLimit"), PlotLimit::Lower);
    addLimit(data, y, curve.side, QStringLiteral("upperLimit"), PlotLimit::Upper);
    addCurve(data, curve, x.getValue().toList(), y.getValue().toList());
}

/// Seconds and milliseconds that are long or recent are times, and so is what the service calls so.
AxisScale::Kind timeKind(const PlotData& data, double seconds)
{
    if (data.xKind != AxisScale::Linear || seconds <= 0 || seconds > 1)
        return data.xKind;
    Interval extent = data.xExtent();
    if (extent.isEmpty())
        return data.xKind;
    extent = {extent.low * seconds, extent.high * seconds};
    if (extent.low >= year2000 && extent.high < year2100)
        return AxisScale::Date;
    return extent.extent() >= shortestDuration ? AxisScale::Duration : AxisScale::Linear;
}

void settleTimes(PlotData& data)
{
    const double unit = data.xSeconds;
    data.xKind = timeKind(data, unit);
    if (data.xKind != AxisScale::Date && data.xKind != AxisScale::Duration)
        return;
    const double seconds = unit > 0 ? unit : 1;
    data.xUnit = QStringLiteral("s");
    for (PlotCurve& curve : data.curves) {
        curve.extent.x.low *= seconds;
        curve.extent.x.high *= seconds;
        for (QPointF& point : curve.points)
            point.rx() *= seconds;
    }
}

/// Calls visit(x, y) for each pair of items that is a curve.
template<typename Visitor> void forEachPair(const QString& service, Visitor visit)
{
    const KIVClientInterface* client = KIVClientInterface::getSessionBusClient(service);
    if (!client)
        return;
    const QStringList ids = client->getItemIds(itemids::result);
    for (const QString& id : ids) {
        if (!id.endsWith(xEnd))
            continue;
        const KIVClientItem* x = client->getItem(id);
        const KIVClientItem* y = client->getItem(id.left(id.size() - xEnd.size()) + yEnd);
        if (x && y)
            visit(*x, *y);
    }
}

} // namespace

QString shownPlotText(const QString& text)
{
    constexpr int longest = 200;
    const bool isLong = text.size() > longest;
    QString shown = isLong ? text.left(longest - 1) + QChar(0x2026) : text;
    for (QChar& c : shown) {
        if (disturbsLine(c))
            c = QLatin1Char(' ');
    }
    return shown.simplified();
}

double paddedLimit(double limit, double pad)
{
    const double end = limit + pad;
    return limit * end < 0 ? 0 : end;
}

Interval PlotData::xExtent() const
{
    Interval extent = xWindow;
    if (!extent.isEmpty())
        return extent;
    for (const PlotCurve& curve : curves)
        extent.include(curve.extent.x);
    return extent;
}

Interval PlotData::yExtent(PlotSide side) const
{
    Interval extent = axes[side].window;
    if (!extent.isEmpty())
        return extent;
    for (const PlotCurve& curve : curves) {
        if (curve.side == side)
            extent.include(curve.extent.y);
    }
    const bool isLinear = axes[side].kind == AxisScale::Linear;
    Interval levels;
    for (const PlotLimit& limit : limits) {
        if (limit.side == side && (isLinear || limit.value > 0))
            levels.include(limit.value);
    }
    if (levels.isEmpty())
        return extent;
    extent.include(levels);
    // A limit at the end of the axis would lie on the frame.
    const double pad = isLinear ? 0.02 * extent.extent() : 0;
    if (levels.low <= extent.low)
        extent.include(paddedLimit(extent.low, -pad));
    if (levels.high >= extent.high)
        extent.include(paddedLimit(extent.high, pad));
    return extent;
}

bool PlotData::isDrawable(const QPointF& point, PlotSide side) const
{
    return std::isfinite(point.x()) && std::isfinite(point.y()) && (xKind != AxisScale::Logarithmic || point.x() > 0)
            && (axes[side].kind != AxisScale::Logarithmic || point.y() > 0);
}

void addUnit(PlotAxis& axis, const QString& unit)
{
    if (!unit.isEmpty() && !axis.units.contains(unit))
        axis.units += unit;
}

void addCurve(PlotData& data, PlotCurve curve, const QVariantList& xs, const QVariantList& ys)
{
    if (data.curves.size() >= mostCurves) {
        ++data.omitted;
        return;
    }
    curve.size = std::min(xs.size(), ys.size());
    for (int i = 0; i < curve.size; ++i) {
        const QPointF point(number(xs.at(i)), number(ys.at(i)));
        if (!data.isDrawable(point, curve.side))
            continue;
        curve.extent.x.include(point.x());
        curve.extent.y.include(point.y());
    }
    const AxisScale scale(curve.extent.x, data.xKind == AxisScale::Logarithmic ? data.xKind : AxisScale::Linear,
            AxisScale::AtData, 3);
    CurvePoints points(std::min(columnsOfACurve, columnsOfAllCurves / (data.curves.size() + 1)));
    for (int i = 0; i < curve.size; ++i) {
        const QPointF point(number(xs.at(i)), number(ys.at(i)));
        if (data.isDrawable(point, curve.side))
            points.add(scale.position(point.x()), point);
        else
            points.interrupt();
    }
    curve.points = points.take();
    data.curves += curve;
}

PlotData readPlotData(const QString& source)
{
    if (isPlotText(source))
        return plotOfText(source);
    PlotData data;
    forEachPair(source, [&](const KIVClientItem& x, const KIVClientItem& y) { addPair(data, x, y); });
    settleTimes(data);
    return data;
}

QPointF PlotArrays::point(int index) const
{
    return {number(m_xs.at(index)), number(m_ys.at(index))};
}

QVector<PlotArrays> readPlotArrays(const QString& source)
{
    if (isPlotText(source))
        return arraysOfText(source);
    QVector<PlotArrays> curves;
    forEachPair(source, [&](const KIVClientItem& x, const KIVClientItem& y) {
        if (curves.size() < mostCurves)
            curves.append({x.getValue().toList(), y.getValue().toList()});
    });
    return curves;
}

QVector<QVector<QPointF>> visibleStretches(
        const PlotCurve& curve, const AxisScale& xScale, const AxisScale& yScale, int columns)
{
    CurvePoints visible(columns);
    for (const QPointF& point : curve.points) {
        if (CurvePoints::isInterruption(point)) {
            visible.interrupt();
            continue;
        }
        const QPointF position(xScale.position(point.x()), yScale.position(point.y()));
        visible.add(position.x(), position);
    }
    const QVector<QPointF> points = visible.take();
    QVector<QVector<QPointF>> stretches;
    bool isOpen = false;
    for (const QPointF& point : points) {
        const bool isEnd = CurvePoints::isInterruption(point);
        if (!isEnd && !isOpen)
            stretches += QVector<QPointF>();
        if (!isEnd)
            stretches.last() += point;
        isOpen = !isEnd;
    }
    return stretches;
}

} // namespace uiutils
