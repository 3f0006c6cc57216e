#include "writers/pages/pageimage_p.h"

#include <QBuffer>
#include <QImageReader>

namespace uiutils {

namespace {

constexpr qint64 maximumPixels = 50'000'000;

} // namespace

QSize encodedSize(const QByteArray& encoded)
{
    QBuffer buffer;
    buffer.setData(encoded);
    const QSize size = QImageReader(&buffer).size();
    const bool isSane = !size.isEmpty() && qint64(size.width()) * size.height() <= maximumPixels;
    return isSane ? size : QSize();
}

QImage decodedImage(const QByteArray& encoded)
{
    return encodedSize(encoded).isEmpty() ? QImage() : QImage::fromData(encoded);
}

} // namespace uiutils
