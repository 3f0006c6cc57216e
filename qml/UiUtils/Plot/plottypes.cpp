#include "plottypes.h"

#include "liveplot.h"

#include <qqml.h>

namespace uiutils {

void registerPlotTypes(const char* uri)
{
    constexpr int major = 1;
    constexpr int minor = 0;
    qmlRegisterType<LivePlot>(uri, major, minor, "LivePlot");
    qmlRegisterType<PlotCurveItem>(uri, major, minor, "PlotCurve");
    qmlRegisterType<PlotLimitItem>(uri, major, minor, "PlotLimit");
    qmlRegisterType<PlotMaskItem>(uri, major, minor, "PlotMask");
    qmlRegisterType<PlotMarkerItem>(uri, major, minor, "PlotMarker");
    const QString reason = QStringLiteral("A part of other types");
    qmlRegisterUncreatableType<PlotBounds>(uri, major, minor, "PlotBounds", reason);
    qmlRegisterUncreatableType<PlotColors>(uri, major, minor, "PlotColors", reason);
}

} // namespace uiutils
