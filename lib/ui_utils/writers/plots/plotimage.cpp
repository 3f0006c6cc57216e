#include "writers/plots/plotimage.h"

#include "base/durablefile_p.h"
#include "base/paths_p.h"
#include "writers/plots/plotpainter_p.h"

#include <QColor>
#include <QSize>

class uiutils::PlotImagePrivate
{
public:
    QByteArray draw() const;

    QString service;
    QString title;
    QColor background = Qt::white;
    QSize size;
    int pixelScale = 1;
    QByteArray data;
};

PlotImage::PlotImage()
    : d(std::make_unique<uiutils::PlotImagePrivate>())
{
    setSize(0, 0);
}

PlotImage::~PlotImage() = default;

void PlotImage::setService(const QString& service)
{
    d->service = service;
}

void PlotImage::setCurveBackground(const QString& color)
{
    d->background = uiutils::plotBackground(color);
}

void PlotImage::setSize(int width, int height)
{
    d->size = uiutils::plotSize(width, height);
}

void PlotImage::setTitle(const QString& title)
{
    d->title = title;
}

void PlotImage::setPixelScale(int scale)
{
    d->pixelScale = qBound(1, scale, 4);
}

QByteArray PlotImage::getData() const
{
    return d->data;
}

bool PlotImage::write(const QString& path)
{
    d->data = d->draw();
    const QString place = uiutils::onDisk(path);
    return path.startsWith(uiutils::paths::plotImageStem) ? uiutils::writeFileForNow(place, d->data)
                                                          : uiutils::writeFileDurably(place, d->data);
}

QByteArray uiutils::PlotImagePrivate::draw() const
{
    const auto data = std::make_shared<PlotData>(readPlotData(service));
    return plotPicture(PlotLayout(data, title, size), background, pixelScale);
}
