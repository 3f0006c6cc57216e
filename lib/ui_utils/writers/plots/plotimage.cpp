#include "writers/plots/plotimage.h"

#include "base/durablefile_p.h"
#include "base/paths_p.h"
#include "writers/plots/plotpainter_p.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>

namespace {

constexpr int maximumSide = 4000;

} // namespace

class uiutils::PlotImagePrivate
{
public:
    QImage draw() const;

    QString service;
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
    d->background = QColor(color);
    if (!d->background.isValid())
        d->background = Qt::white;
}

void PlotImage::setSize(int width, int height)
{
    d->size = QSize(
            width < 1 ? 600 : qBound(50, width, maximumSide), height < 1 ? 400 : qBound(50, height, maximumSide));
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
    d->data.clear();
    QBuffer buffer(&d->data);
    buffer.open(QIODevice::WriteOnly);
    d->draw().save(&buffer, "PNG");
    const QString place = uiutils::onDisk(path);
    return path.startsWith(uiutils::paths::plotImageStem) ? uiutils::writeFileForNow(place, d->data)
                                                          : uiutils::writeFileDurably(place, d->data);
}

QImage uiutils::PlotImagePrivate::draw() const
{
    // Never more pixels than the largest picture.
    const QSize pixels = (size * pixelScale).boundedTo(QSize(maximumSide, maximumSide));
    QImage image(pixels, QImage::Format_RGB32);
    image.fill(Qt::white);
    const uiutils::PlotData plot = uiutils::readPlotData(service);
    QPainter painter(&image);
    uiutils::PlotPainter(painter, plot, pixels, background).draw();
    return image;
}
