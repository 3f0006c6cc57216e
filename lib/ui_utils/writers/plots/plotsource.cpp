#include "writers/plots/plotsource_p.h"

#include "writers/plots/curvepoints_p.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>

namespace uiutils {

namespace {

const QLatin1String x("x");
const QLatin1String left("left");
const QLatin1String right("right");
const QLatin1String kind("kind");
const QLatin1String low("low");
const QLatin1String high("high");
const QLatin1String label("label");
const QLatin1String unit("unit");
const QLatin1String side("side");
const QLatin1String curves("curves");
const QLatin1String mask("mask");
const QLatin1String count("count");
const QLatin1String points("points");
const QLatin1String everyPoint("data");
const QLatin1String failed("failed");
const QLatin1String marginal("marginal");
const QLatin1String limits("limits");
const QLatin1String lower("lower");
const QLatin1String upper("upper");
const QLatin1String marks("marks");

// Digits that a plot needs, and points in time.
constexpr int digits = 12;
constexpr int mostMarks = 100;
constexpr int mostLimits = 500;

// By their numbers in AxisScale.
const QLatin1String kinds[]
        = {QLatin1String("linear"), QLatin1String("log"), QLatin1String("duration"), QLatin1String("date")};

AxisScale::Kind kindOf(const QJsonObject& object)
{
    const QString name = object.value(kind).toString();
    for (int i = 0; i < int(std::size(kinds)); ++i) {
        if (name == kinds[i])
            return AxisScale::Kind(i);
    }
    return AxisScale::Linear;
}

QJsonValue numberOf(double value)
{
    return std::isfinite(value) ? QJsonValue(QString::number(value, 'g', digits).toDouble()) : QJsonValue();
}

/// x and y in turn.
QJsonArray arrayOf(const QVector<QPointF>& line)
{
    QJsonArray array;
    for (const QPointF& point : line) {
        array += numberOf(point.x());
        array += numberOf(point.y());
    }
    return array;
}

/// The same with all their digits, as they were measured.
QJsonArray allOf(const QVector<QPointF>& line)
{
    QJsonArray array;
    for (const QPointF& point : line) {
        array += std::isfinite(point.x()) ? QJsonValue(point.x()) : QJsonValue();
        array += std::isfinite(point.y()) ? QJsonValue(point.y()) : QJsonValue();
    }
    return array;
}

QJsonObject axisOf(const QString& name, const QString& unitName, AxisScale::Kind number, const Interval& window)
{
    QJsonObject axis {{label, name}, {unit, unitName}, {kind, QString(kinds[number])}};
    if (!window.isEmpty()) {
        axis.insert(low, numberOf(window.low));
        axis.insert(high, numberOf(window.high));
    }
    return axis;
}

Interval windowOf(const QJsonObject& axis)
{
    Interval window;
    if (axis.value(low).isDouble() && axis.value(high).isDouble()) {
        window.include(axis.value(low).toDouble());
        window.include(axis.value(high).toDouble());
    }
    return window;
}

QJsonObject curveObject(const PlotCurve& curve)
{
    QJsonObject object {{label, curve.label}, {unit, curve.unit}, {count, curve.size}, {points, arrayOf(curve.points)}};
    if (curve.side == RightSide)
        object.insert(side, QString(right));
    if (curve.isMask)
        object.insert(mask, true);
    if (!curve.all.isEmpty())
        object.insert(everyPoint, allOf(curve.all));
    for (const PlotExcess& excess : curve.excesses)
        object.insert(excess.isFailure ? failed : marginal, arrayOf(excess.points));
    return object;
}

PlotSide sideOf(const QJsonObject& object)
{
    return object.value(side).toString() == right ? RightSide : LeftSide;
}

/// Every second value, from `first` on. Null stands for an interruption.
QVariantList valuesOf(const QJsonArray& array, int first)
{
    QVariantList values;
    for (int i = first; i < array.size(); i += 2)
        values += array.at(i).toVariant();
    return values;
}

QVector<QPointF> lineOf(const QJsonArray& array, const PlotData& data, PlotSide ofSide)
{
    QVector<QPointF> line;
    for (int i = 0; i + 1 < array.size(); i += 2) {
        const QPointF point(array.at(i).toDouble(std::nan("")), array.at(i + 1).toDouble(std::nan("")));
        line += data.isDrawable(point, ofSide) ? point : CurvePoints::interruption();
    }
    return line;
}

void readCurve(PlotData& data, const QJsonObject& object)
{
    PlotCurve curve;
    curve.label = shownPlotText(object.value(label).toString());
    curve.unit = shownPlotText(object.value(unit).toString());
    curve.side = sideOf(object);
    curve.isMask = object.value(mask).toBool();
    for (const bool isFailure : {false, true}) {
        const QVector<QPointF> line = lineOf(object.value(isFailure ? failed : marginal).toArray(), data, curve.side);
        if (!line.isEmpty())
            curve.excesses.append({isFailure, line});
    }
    const QJsonArray all = object.value(points).toArray();
    const int before = data.curves.size();
    addUnit(data.axes[curve.side], curve.unit);
    addCurve(data, curve, valuesOf(all, 0), valuesOf(all, 1));
    // A plot holds fewer points than there were.
    if (data.curves.size() > before)
        data.curves.last().size = std::max(data.curves.constLast().size, object.value(count).toInt());
}

void readLimit(PlotData& data, const QJsonObject& object)
{
    for (const auto& [name, limitKind] : {std::make_pair(lower, PlotLimit::Lower), {upper, PlotLimit::Upper}}) {
        const QJsonValue value = object.value(name);
        if (value.isDouble() && data.limits.size() < mostLimits) {
            data.limits.append({limitKind, value.toDouble(), shownPlotText(object.value(unit).toString()),
                    sideOf(object), shownPlotText(object.value(label).toString())});
        }
    }
}

} // namespace

QString plotText(const PlotData& data)
{
    QJsonObject plot {{x, axisOf(data.xLabel, data.xUnit, data.xKind, data.xWindow)},
            {left, axisOf({}, {}, data.axes[LeftSide].kind, data.axes[LeftSide].window)},
            {right, axisOf({}, {}, data.axes[RightSide].kind, data.axes[RightSide].window)}};
    QJsonArray all;
    for (const PlotCurve& curve : data.curves)
        all += curveObject(curve);
    plot.insert(curves, all);
    QJsonArray levels;
    for (const PlotLimit& limit : data.limits) {
        QJsonObject level {{label, limit.label}, {unit, limit.unit}};
        level.insert(limit.kind == PlotLimit::Lower ? lower : upper, numberOf(limit.value));
        if (limit.side == RightSide)
            level.insert(side, QString(right));
        levels += level;
    }
    plot.insert(limits, levels);
    QJsonArray places;
    for (const PlotMark& mark : data.marks)
        places += QJsonObject {{label, mark.label}, {x, numberOf(mark.x)}};
    plot.insert(marks, places);
    return QString::fromUtf8(QJsonDocument(plot).toJson(QJsonDocument::Compact));
}

bool isPlotText(const QString& source)
{
    return source.startsWith(QLatin1Char('{'));
}

PlotData plotOfText(const QString& text)
{
    const QJsonObject plot = QJsonDocument::fromJson(text.toUtf8()).object();
    PlotData data;
    const QJsonObject axis = plot.value(x).toObject();
    data.xLabel = shownPlotText(axis.value(label).toString());
    data.xUnit = data.xOwnUnit = shownPlotText(axis.value(unit).toString());
    data.xKind = kindOf(axis);
    data.xWindow = windowOf(axis);
    for (const auto& [name, ofSide] : {std::make_pair(left, LeftSide), {right, RightSide}}) {
        const AxisScale::Kind found = kindOf(plot.value(name).toObject());
        data.axes[ofSide].kind = found == AxisScale::Logarithmic ? found : AxisScale::Linear;
        data.axes[ofSide].window = windowOf(plot.value(name).toObject());
    }
    for (const QJsonValue curve : plot.value(curves).toArray())
        readCurve(data, curve.toObject());
    for (const QJsonValue limit : plot.value(limits).toArray())
        readLimit(data, limit.toObject());
    for (const QJsonValue mark : plot.value(marks).toArray()) {
        const QJsonObject object = mark.toObject();
        if (object.value(x).isDouble() && data.marks.size() < mostMarks)
            data.marks.append({shownPlotText(object.value(label).toString()), object.value(x).toDouble()});
    }
    return data;
}

QVector<PlotArrays> arraysOfText(const QString& text)
{
    QVector<PlotArrays> arrays;
    const QJsonArray all = QJsonDocument::fromJson(text.toUtf8()).object().value(curves).toArray();
    const int shown = plotOfText(text).curves.size();
    for (int i = 0; i < shown; ++i) {
        const QJsonObject curve = all.at(i).toObject();
        const QJsonArray line = curve.value(curve.value(everyPoint).isArray() ? everyPoint : points).toArray();
        arrays.append({valuesOf(line, 0), valuesOf(line, 1)});
    }
    return arrays;
}

} // namespace uiutils
