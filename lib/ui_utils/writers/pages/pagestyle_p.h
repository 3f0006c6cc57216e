#pragma once

#include "writers/pages/pagefont_p.h"

#include <QColor>
#include <QImage>
#include <QMap>
#include <QStringList>

#include <optional>

namespace uiutils {

/// The type of a table: fonts and distances.
struct TableType
{
    const PageFont& body;
    const PageFont& bold;
    /// On the left and right of a cell's text.
    qreal cellPadding;
    /// Above and below a cell's text.
    qreal rowPadding;

    /// From line to line of a row.
    qreal lineHeight() const { return qMax(body.lineHeight(), bold.lineHeight()); }
};

/// Fonts, colours and distances of printed pages, in the units of the device that they are printed on.
class PageStyle
{
public:
    /// A mirrored style is for a report that is read from right to left: columns, labels and sides change places.
    explicit PageStyle(QPaintDevice* device, bool isMirrored = false);

    /// Device units of a length in points.
    qreal points(qreal length) const { return length * m_unitsOfAPoint; }

    /// For tables of few columns, and for tables of many.
    TableType tableType(bool isDense) const;

    /// The font and the colour of headings of that level, 1 or more.
    const PageFont& headingFont(int level) const;
    const QColor& headingColor(int level) const;

    bool isMirrored() const { return m_isMirrored; }
    /// Where lines begin.
    Qt::Alignment beginning() const { return m_isMirrored ? Qt::AlignRight : Qt::AlignLeft; }
    /// Where lines end.
    Qt::Alignment ending() const { return m_isMirrored ? Qt::AlignLeft : Qt::AlignRight; }

    /// The icon of a cell's status, always the same image, so that a file contains it once; null if the status has
    /// none. A file that cannot be read is replaced by a drawn icon.
    const QImage& statusIcon(int status) const;
    bool hasStatusIcon(int status) const { return !statusIcon(status).isNull(); }
    /// The files on the disk that were to be shown and could not be read.
    const QStringList& unreadableIcons() const { return m_unreadableIcons; }

private:
    // What fonts are made for later: the resolution of the device.
    mutable QImage m_resolution;
    qreal m_unitsOfAPoint;
    bool m_isMirrored;

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
    // Made for the first table of many columns.
    mutable std::optional<PageFont> m_denseBody;
    mutable std::optional<PageFont> m_denseBold;
    mutable QMap<int, QImage> m_icons;
    mutable QStringList m_unreadableIcons;
};

} // namespace uiutils
