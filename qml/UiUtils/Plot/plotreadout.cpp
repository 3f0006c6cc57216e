#include "plotreadout.h"

#include <QCoreApplication>
#include <QLocale>

#include <cmath>

namespace uiutils {

namespace {

// A screen distinguishes as many.
constexpr int distinguishable = 1000;
constexpr int digitsOfLogarithmic = 4;

struct PlotTexts
{
    Q_DECLARE_TR_FUNCTIONS(LivePlot)
};

QString withUnit(const QString& text, const QString& unit)
{
    return unit.isEmpty() ? text : QStringLiteral("%1 %2").arg(text, unit);
}

QString joined(const QStringList& parts)
{
    return parts.join(QStringLiteral(", "));
}

/// Of a time axis, distances are durations.
AxisScale::Kind kindOfDistance(AxisScale::Kind kind)
{
    return kind == AxisScale::Date ? AxisScale::Duration : kind;
}

QString extentText(const PlotContent& content, const PlotView& view, const PlotCurveItem& curve)
{
    const CurveStore& store = curve.store();
    if (store.xExtent().isEmpty())
        return PlotTexts::tr("%1: no data").arg(curve.name());
    const PlotSide side = sideOf(&curve);
    const auto text = [&](double y) { return plotValueText(y, view.y(side), content.yKinds[side], curve.unit()); };
    const QString extent = PlotTexts::tr("%1: %2 to %3, from %4 to %5")
                                   .arg(curve.name(), text(store.yExtent().low), text(store.yExtent().high),
                                           plotXText(content, view, store.xExtent().low),
                                           plotXText(content, view, store.xExtent().high));
    const QString verdict = plotVerdictText(curve.verdict());
    return verdict.isEmpty() ? extent : QStringLiteral("%1. %2").arg(extent, verdict);
}

} // namespace

QString plotVerdictText(int status)
{
    return status == Status::Fail        ? PlotTexts::tr("Fail")
            : status == Status::Marginal ? PlotTexts::tr("Marginal")
            : status == Status::Pass     ? PlotTexts::tr("Pass")
                                         : QString();
}

QString plotValueText(double value, const AxisView& view, AxisScale::Kind kind, const QString& unit)
{
    const QLocale locale;
    if (!std::isfinite(value))
        return QStringLiteral("\u2013");
    if (kind == AxisScale::Logarithmic)
        return withUnit(locale.toString(value, 'g', digitsOfLogarithmic), unit);
    const AxisScale scale(view.values(), kind, AxisScale::AtData, distinguishable);
    if (!scale.isOfTime())
        return withUnit(scale.label(value, locale), unit);
    const QString day = scale.note(locale);
    return day.isEmpty() || kind != AxisScale::Date ? scale.label(value, locale)
                                                    : joined({day, scale.label(value, locale)});
}

QString plotXText(const PlotContent& content, const PlotView& view, double x)
{
    return plotValueText(x, view.x(), content.xKind, content.xUnit);
}

QVector<PlotReadout> plotReadouts(const PlotContent& content, const PlotView& view, double x)
{
    QVector<PlotReadout> readouts;
    for (const PlotCurveItem* curve : content.visibleCurves()) {
        const PlotSide side = sideOf(curve);
        const double y = curve->valueAt(x);
        readouts.append(
                {curve, y, plotValueText(y, view.y(side), content.yKinds[side], curve->unit()), curve->verdictAt(x)});
    }
    return readouts;
}

QString plotReadoutText(const PlotContent& content, const PlotView& view, double x)
{
    if (!std::isfinite(x))
        return {};
    const QString place = plotXText(content, view, x);
    QStringList parts {content.xLabel.isEmpty() ? place : withUnit(content.xLabel, place)};
    for (const PlotReadout& readout : plotReadouts(content, view, x)) {
        const QString verdict = readout.status > Status::Pass ? plotVerdictText(readout.status) : QString();
        const QString value = withUnit(readout.curve->name(), readout.text);
        parts += verdict.isEmpty() ? value : QStringLiteral("%1 (%2)").arg(value, verdict);
    }
    return joined(parts);
}

QString plotDeltaText(const PlotContent& content, const PlotView& view, double from, double to)
{
    if (!std::isfinite(from) || !std::isfinite(to))
        return {};
    // Distances have the digits of the values.
    const Interval distances {0, view.x().high() - view.x().low()};
    const AxisScale::Kind kind = kindOfDistance(content.xKind);
    QStringList parts {plotValueText(to - from, AxisView(distances, false), kind, content.xUnit)};
    for (const PlotCurveItem* curve : content.visibleCurves()) {
        const PlotSide side = sideOf(curve);
        const double gain = curve->valueAt(to) - curve->valueAt(from);
        parts += withUnit(curve->name(), plotValueText(gain, view.y(side), content.yKinds[side], curve->unit()));
    }
    return joined(parts);
}

QString plotDescription(const PlotContent& content, const PlotView& view)
{
    QStringList sentences;
    for (const PlotCurveItem* curve : content.visibleCurves())
        sentences += PlotTexts::tr("%1.").arg(extentText(content, view, *curve));
    if (std::isfinite(content.cursorX))
        sentences += PlotTexts::tr("At the cursor: %1.").arg(plotReadoutText(content, view, content.cursorX));
    return sentences.isEmpty() ? content.emptyText() : sentences.join(QLatin1Char(' '));
}

} // namespace uiutils
