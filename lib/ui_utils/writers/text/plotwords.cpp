#include "writers/text/plotwords_p.h"

#include "writers/plots/plotdata_p.h"
#include "writers/text/reportcontent_p.h"

#include <QLocale>
#include <QStringList>

namespace uiutils {

namespace {

QString shortNumber(double value)
{
    constexpr int digits = 5;
    return QLocale().toString(value, 'g', digits);
}

QString withUnit(const QString& label, const QString& unit)
{
    return unit.isEmpty() ? label : QStringLiteral("%1 (%2)").arg(label, unit);
}

} // namespace

QString plotInWords(const PlotData& data)
{
    constexpr int mostCurves = 20;
    QStringList parts;
    for (const PlotCurve& curve : data.curves.mid(0, mostCurves)) {
        const Interval& y = curve.extent.y;
        const QString name = withUnit(curve.label, curve.unit);
        parts += y.isEmpty() ? name
                             : ReportWords::tr("%1: %2 to %3").arg(name, shortNumber(y.low), shortNumber(y.high));
    }
    if (data.curves.size() > mostCurves)
        parts += ReportWords::tr("%1 more").arg(data.curves.size() - mostCurves);
    return parts.isEmpty() ? ReportWords::tr("There are no curves.") : parts.join(QLatin1String("; "));
}

} // namespace uiutils
