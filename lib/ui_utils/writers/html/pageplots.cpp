#include "writers/html/pageplots_p.h"

#include "base/durablefile_p.h"
#include "base/paths_p.h"
#include "writers/html/plotdrawing_p.h"
#include "writers/plots/plotpainter_p.h"

namespace uiutils {

namespace {

constexpr int mostTitledPictures = 100;
/// The plot of a table with this number or a larger one leaves no file.
constexpr quint64 mostFiles = 100;

} // namespace

PagePlots::PagePlots(const QSize& size, const QColor& background, int pixelScale)
    : m_size(size)
    , m_background(background)
    , m_pixelScale(pixelScale)
{
    m_data.insert(QString(), std::make_shared<PlotData>());
}

/// All services without curves look alike, and a document may name thousands that do not exist.
PagePlots::Plot PagePlots::plot(const QString& service, const QString& title)
{
    auto known = m_data.constFind(service);
    if (known == m_data.constEnd()) {
        const auto data = std::make_shared<PlotData>(readPlotData(service));
        known = data->curves.isEmpty() ? m_data.constFind(QString()) : m_data.insert(service, data);
    }
    return std::make_shared<const PlotLayout>(*known, title, m_size);
}

QByteArray PagePlots::picture(const Plot& plot)
{
    const bool hasRoom = m_pictures.size() < mostTitledPictures;
    const QPair<const PlotData*, QString> own(&plot->data(), plot->title());
    const auto known = m_pictures.constFind(own);
    if (known != m_pictures.constEnd())
        return *known;
    if (hasRoom || plot->title().isEmpty())
        return *m_pictures.insert(own, plotPicture(*plot, m_background, m_pixelScale));
    return picture(std::make_shared<const PlotLayout>(plot->sharedData(), QString(), m_size));
}

void PagePlots::leaveFile(const Plot& plot, quint64 tableNumber)
{
    if (tableNumber < mostFiles)
        writeFileForNow(onDisk(paths::plotImage(tableNumber)), picture(plot));
}

QVector<ReportItem*> PagePlots::items(const Plot& plot) const
{
    return plotItems(plot, m_background);
}

} // namespace uiutils
