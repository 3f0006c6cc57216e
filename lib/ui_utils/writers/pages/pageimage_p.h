#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>

namespace uiutils {

/// The size of an encoded image, read from its head without decoding it; empty for what is no image, or is one of more
/// than 50 million pixels: a file of a hundred kilobytes can claim gigabytes.
QSize encodedSize(const QByteArray& encoded);

/// The image; null where encodedSize() is empty, or the bytes do not hold what their head says.
QImage decodedImage(const QByteArray& encoded);

} // namespace uiutils
