#include "writers/csv/csvplot_p.h"

#include "base/plaintext_p.h"
#include "writers/plots/plotdata_p.h"
#include "writers/text/reportcontent_p.h"

#include <algorithm>

namespace uiutils {

namespace {

QString withUnit(const QString& label, const QString& unit)
{
    return plainText(unit.isEmpty() ? label : QStringLiteral("%1 (%2)").arg(label, unit)).trimmed();
}

void writeHeader(const PlotData& data, CsvLines& lines)
{
    for (const PlotCurve& curve : data.curves) {
        lines.putText(withUnit(data.xLabel, data.xOwnUnit));
        lines.putText(withUnit(curve.label, curve.unit));
    }
    for (const PlotLimit& limit : data.limits) {
        const bool isLower = limit.kind == PlotLimit::Lower;
        lines.putText(withUnit(isLower ? ReportWords::tr("Lower limit") : ReportWords::tr("Upper limit"), limit.unit));
    }
    lines.endLine();
}

} // namespace

void writePlotPoints(const QString& service, CsvLines& lines)
{
    const PlotData data = readPlotData(service);
    // What pictures show of a curve is not all of it.
    const QVector<PlotArrays> curves = readPlotArrays(service);
    writeHeader(data, lines);
    int rows = 0;
    for (const PlotArrays& curve : curves)
        rows = std::max(rows, curve.size());
    for (int row = 0; row < rows; ++row) {
        for (const PlotArrays& curve : curves) {
            const QPointF point = row < curve.size() ? curve.point(row) : QPointF(qQNaN(), qQNaN());
            lines.putNumber(point.x());
            lines.putNumber(point.y());
        }
        for (const PlotLimit& limit : data.limits)
            lines.putNumber(limit.value);
        lines.endLine();
    }
}

} // namespace uiutils
