#include "liveplot.h"

#include "base/durablefile_p.h"
#include "base/paths_p.h"
#include "plotreport.h"
#include "writers/plots/plotpainter_p.h"
#include "writers/plots/plotsource_p.h"

#include <memory>

namespace uiutils {

namespace {

// Of a picture: enough for paper.
constexpr int pixelScale = 2;

} // namespace

QString LivePlot::reportData() const
{
    return plotText(reportPlot(m_content, view()));
}

void LivePlot::addToReport(ReportTemplate* report, const QString& tag, const QString& title) const
{
    if (!report)
        return;
    report->beginTable(tag, title);
    report->setKey(QStringLiteral("label"), QStringLiteral("plot"));
    report->setKey(QStringLiteral("plot_data"), reportData());
    report->endTable();
}

/// By way of the text, so that a picture and a report are the same drawing.
bool LivePlot::savePicture(const QString& path, int width, int height, const QString& title) const
{
    const auto data = std::make_shared<const PlotData>(plotOfText(reportData()));
    const PlotLayout layout(data, title, plotSize(width, height));
    return writeFileDurably(onDisk(path), plotPicture(layout, Qt::white, pixelScale));
}

} // namespace uiutils
