#include "writers/plots/plotimage.h"

#include "base/durablefile.h"
#include "base/paths.h"
#include "writers/plots/plotpainter_p.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>

namespace {

constexpr int maximumSide = 4000;

} // namespace

PlotImage::PlotImage()
{
    setSize(0, 0);
}

void PlotImage::setCurveBackground(const QString& color)
{
    m_background = QColor(color);
    if (!m_background.isValid())
        m_background = Qt::white;
}

void PlotImage::setSize(int width, int height)
{
    m_size = QSize(
            width < 1 ? 600 : qBound(50, width, maximumSide), height < 1 ? 400 : qBound(50, height, maximumSide));
}

bool PlotImage::write(const QString& path)
{
    m_data.clear();
    QBuffer buffer(&m_data);
    buffer.open(QIODevice::WriteOnly);
    draw().save(&buffer, "PNG");
    const QString place = uiutils::onDisk(path);
    return path.startsWith(uiutils::paths::plotImageStem) ? uiutils::writeFileForNow(place, m_data)
                                                          : uiutils::writeFileDurably(place, m_data);
}

QImage PlotImage::draw() const
{
    // Never finer than the largest picture.
    const QSize size = (m_size * m_pixelScale).boundedTo(QSize(maximumSide, maximumSide));
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    const uiutils::PlotData data = uiutils::readPlotData(m_service);
    QPainter painter(&image);
    uiutils::PlotPainter(painter, data, size, m_background).draw();
    return image;
}
