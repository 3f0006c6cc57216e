#pragma once

#include "core/uiutils_export.h"

#include <QList>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>

namespace uiutils {
class PageCanvas;
class PageStyle;
} // namespace uiutils

/// Something that a printed report shows: a heading, a text, a table, an image.
///
/// An item is a stack of rows, and a row a stack of lines. The page renderer has each item measure() itself for the
/// pages, asks it by split() how much of it goes onto a page, again and again until its end, and has it draw() each
/// portion there. Lengths are in the units of the device that is printed on.
class UIUTILS_EXPORT ReportItem
{
public:
    /// A place at which an item can be parted: how many rows lie before it, and how many lines of the next row.
    struct Position
    {
        int row = 0;
        int line = 0;

        bool operator==(const Position& other) const { return row == other.row && line == other.line; }
        bool operator!=(const Position& other) const { return !(*this == other); }
    };

    /// What of an item lies together on one page.
    struct Portion
    {
        Position begin;
        Position end;
        qreal height = 0;

        bool isEmpty() const { return begin == end; }
    };

    ReportItem();
    virtual ~ReportItem();
    Q_DISABLE_COPY_MOVE(ReportItem)

    /// Lays the item out for pages that offer `page`. What this takes in memory is kept until the next measure() or
    /// release().
    virtual void measure(const uiutils::PageStyle& style, const QSizeF& page) = 0;
    /// Forgets the layout.
    virtual void release();

    /// Behind the last row.
    virtual Position end() const = 0;
    /// As much of the item from `begin` on as fits into `room`: an empty portion when that is nothing worth starting
    /// with, but never when `isWholePage` says that no page offers more.
    virtual Portion split(const Position& begin, qreal room, bool isWholePage) const = 0;
    /// Draws a portion that split() gave.
    virtual void draw(uiutils::PageCanvas& canvas, const Portion& portion, const QPointF& topLeft) const = 0;

    /// The distance from what stands above the item on its page.
    virtual qreal spaceAbove() const = 0;
    /// Whether the item may not stand at a page's foot with what it announces on the next.
    virtual bool keepsWithNext() const { return false; }

    /// The item's title in the file's outline; empty for an item that is not listed there.
    virtual QString outlineTitle() const { return {}; }
    /// 1 to 3 for a heading, which those of a higher level and other items belong to; 0 for other items.
    virtual int headingLevel() const { return 0; }

    /// Whether a pass has made the item, so that the next pass deletes it. False at first.
    bool isOfPass() const { return m_isOfPass; }
    void setOfPass() { m_isOfPass = true; }

private:
    bool m_isOfPass = false;
};

namespace uiutils {

/// The list that the passes of a save share: what the HTML pass appends, the page renderer draws. Each pass first
/// deletes the items of earlier ones. What an application appends stays there and stays its own: it is printed in front
/// of what the next pass appends, and goes only when the application takes it off the list and deletes it.
UIUTILS_EXPORT QList<ReportItem*>& sharedReportItems();

/// Deletes the items that passes have made and takes them off the list; others stay.
UIUTILS_EXPORT void deleteItemsOfPasses(QList<ReportItem*>& items);

} // namespace uiutils
