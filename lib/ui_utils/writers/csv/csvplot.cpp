#include "writers/csv/csvplot_p.h"

#include "base/plaintext_p.h"
#include "writers/plots/plotdata_p.h"
#include "writers/text/reportcontent_p.h"

#include <algorithm>

namespace uiutils {

namespace {

/// As many as a table has columns; a service may publish more.
constexpr int mostCurves = 500;

QString withUnit(const QString& label, const QString& unit)
{
    return plainText(unit.isEmpty() ? label : QStringLiteral("%1 (%2)").arg(label, unit)).trimmed();
}

void writeHeader(const PlotData& data, int curves, CsvLines& lines)
{
    for (int i = 0; i < curves; ++i) {
        lines.putText(withUnit(data.xLabel, data.xUnit));
        lines.putText(withUnit(data.curves.at(i).label, data.curves.at(i).unit));
    }
    for (const PlotLimit& limit : data.limits) {
        const bool isLower = limit.kind == PlotLimit::Lower;
        lines.putText(withUnit(isLower ? ReportWords::tr("Lower limit") : ReportWords::tr("Upper limit"), limit.unit));
    }
    lines.endLine();
}

} // namespace

void writePlotPoints(const PlotData& data, CsvLines& lines)
{
    const int curves = std::min(data.curves.size(), mostCurves);
    writeHeader(data, curves, lines);
    int rows = 0;
    for (int i = 0; i < curves; ++i)
        rows = std::max(rows, data.curves.at(i).size());
    for (int row = 0; row < rows; ++row) {
        for (int i = 0; i < curves; ++i) {
            const PlotCurve& curve = data.curves.at(i);
            const bool isThere = row < curve.size();
            const QPointF point = isThere ? curve.point(row) : QPointF(qQNaN(), qQNaN());
            lines.putNumber(point.x());
            lines.putNumber(point.y());
        }
        for (const PlotLimit& limit : data.limits)
            lines.putNumber(limit.value);
        lines.endLine();
    }
}

} // namespace uiutils
