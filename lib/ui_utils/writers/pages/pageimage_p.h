#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>

namespace uiutils {

/// The size of an encoded image, read from its header without decoding it. Empty if it is not an image or has more than
/// 50 million pixels: a file of a hundred kilobytes can claim gigabytes.
QSize encodedSize(const QByteArray& encoded);

/// The image; null if encodedSize() is empty, or if the bytes do not match their header.
QImage decodedImage(const QByteArray& encoded);

} // namespace uiutils
