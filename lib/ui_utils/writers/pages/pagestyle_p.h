#pragma once

#include "writers/pages/pagefont_p.h"

#include <QColor>
#include <QImage>
#include <QMap>
#include <QStringList>

namespace uiutils {

/// Fonts, colours and distances of printed pages, in the units of the device that they are printed on.
class PageStyle
{
public:
    explicit PageStyle(QPaintDevice* device);

    /// Device units of a length in points.
    qreal points(qreal length) const { return length * m_unitsOfAPoint; }

    /// The icon of a cell's status, always the same image, so that a file contains it once; null if the status has
    /// none. A file that cannot be read is replaced by a drawn icon.
    const QImage& statusIcon(int status) const;
    bool hasStatusIcon(int status) const { return !statusIcon(status).isNull(); }
    /// The files on the disk that were to be shown and could not be read.
    const QStringList& unreadableIcons() const { return m_unreadableIcons; }

private:
    qreal m_unitsOfAPoint;

public:
    const PageFont body;
    const PageFont bold;
    const PageFont small;
    /// Headings of levels 1 to 3.
    const std::array<PageFont, 3> headings;
    const PageFont tableTitle;
    const PageFont documentTitle;

    const QColor ink {32, 36, 40};
    const QColor mutedInk {96, 104, 112};
    const QColor accent {0, 104, 155};
    const QColor onAccent {Qt::white};
    const QColor labelFill {214, 230, 240};
    const QColor stripeFill {240, 247, 252};
    const QColor rule {176, 188, 198};

    /// On the left and right of a cell's text.
    const qreal cellPadding;
    /// Above and below a cell's text.
    const qreal rowPadding;
    const qreal hairline;

private:
    mutable QMap<int, QImage> m_icons;
    mutable QStringList m_unreadableIcons;
};

} // namespace uiutils
