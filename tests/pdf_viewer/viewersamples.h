#pragma once

#include "files.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>

/// Builders of small PDF files for the viewer's tests.
namespace samples {

/// A file of letter pages. Page n has a black bar across it, from n tenths of its height to the next tenth.
inline QByteArray barred(int pages)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageSize(QPageSize(QPageSize::Letter));
    writer.setPageMargins({0, 0, 0, 0});
    QPainter painter(&writer);
    for (int page = 0; page < pages; ++page) {
        if (page > 0)
            writer.newPage();
        const int tenth = writer.height() / 10;
        painter.fillRect(0, (page % 10) * tenth, writer.width(), tenth, Qt::black);
    }
    painter.end();
    return bytes;
}

} // namespace samples
