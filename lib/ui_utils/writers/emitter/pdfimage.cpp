#include "writers/emitter/pdfimage_p.h"

#include "writers/emitter/pdfoutput_p.h"
#include "writers/emitter/pdfsyntax_p.h"

#include <QImage>

namespace uiutils::pdf {

namespace {

/// Rows without the padding of the picture in memory.
QByteArray packed(const QImage& image, int bytesOfAPixel)
{
    const int width = image.width() * bytesOfAPixel;
    QByteArray rows;
    rows.reserve(width * image.height());
    for (int y = 0; y < image.height(); ++y)
        rows.append(reinterpret_cast<const char*>(image.constScanLine(y)), width);
    return rows;
}

QByteArray entriesOf(const QImage& image, const char* colors)
{
    return "/Type/XObject/Subtype/Image/Width " + QByteArray::number(image.width()) + "/Height "
            + QByteArray::number(image.height()) + "/BitsPerComponent 8/ColorSpace" + colors;
}

/// The object of the transparency, 0 if the picture has none.
int writeMask(PdfOutput& output, const QImage& image)
{
    if (!image.hasAlphaChannel())
        return 0;
    const QByteArray alpha = packed(image.convertToFormat(QImage::Format_Alpha8), 1);
    if (alpha.count('\xff') == alpha.size())
        return 0;
    const int object = output.reserve();
    output.writeStream(object, entriesOf(image, "/DeviceGray"), alpha);
    return object;
}

} // namespace

int writeImage(PdfOutput& output, const QImage& image)
{
    const int mask = writeMask(output, image);
    const bool isGray = image.allGray();
    const QImage colors
            = isGray ? image.convertToFormat(QImage::Format_Grayscale8) : image.convertToFormat(QImage::Format_RGB888);
    const int object = output.reserve();
    output.writeStream(object,
            entriesOf(image, isGray ? "/DeviceGray" : "/DeviceRGB")
                    + (mask > 0 ? "/SMask " + referenceTo(mask) : QByteArray()),
            packed(colors, isGray ? 1 : 3));
    return object;
}

} // namespace uiutils::pdf
