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
/// pages, calls split() for one portion after the other until its end, and has it draw() each portion on its page.
/// Lengths are in units of the printing device.
class UIUTILS_EXPORT ReportItem
{
public:
    /// A place at which an item can be split: the number of rows before it, and the number of lines of the next row.
    struct Position
    {
        /// Rows before the place.
        int row = 0;
        /// Lines of the next row before the place.
        int line = 0;

        /// Whether both are the same place.
        bool operator==(const Position& other) const { return row == other.row && line == other.line; }
        /// Whether they are different places.
        bool operator!=(const Position& other) const { return !(*this == other); }
    };

    /// The part of an item that is together on one page.
    struct Portion
    {
        /// Where the portion begins.
        Position begin;
        /// Where the next one begins.
        Position end;
        /// In units of the printing device.
        qreal height = 0;

        /// Whether nothing fits.
        bool isEmpty() const { return begin == end; }
    };

    /// An item of the application's own.
    ReportItem();
    virtual ~ReportItem();
    Q_DISABLE_COPY_MOVE(ReportItem)

    /// Lays the item out for pages of the size `page`. Keeps the memory for that until the next measure() or release().
    virtual void measure(const uiutils::PageStyle& style, const QSizeF& page) = 0;
    /// Forgets the layout.
    virtual void release();

    /// The position after the last row.
    virtual Position end() const = 0;
    /// As much of the item, from `begin` on, as fits into `room`. An empty portion if that is too little to start with,
    /// but never if `isWholePage` says that no page offers more.
    virtual Portion split(const Position& begin, qreal room, bool isWholePage) const = 0;
    /// Draws a portion that split() has returned.
    virtual void draw(uiutils::PageCanvas& canvas, const Portion& portion, const QPointF& topLeft) const = 0;

    /// The distance from what is above the item on its page.
    virtual qreal spaceAbove() const = 0;
    /// Whether the item must not be at the foot of a page while what follows it is on the next page.
    virtual bool keepsWithNext() const { return false; }

    /// The item's title in the file's outline; empty for an item that is not listed there.
    virtual QString outlineTitle() const { return {}; }
    /// 1 to 6 for a heading, to which headings of higher levels and other items belong; 0 for other items.
    virtual int headingLevel() const { return 0; }

    /// Whether a pass has made the item, so that the next pass deletes it. False by default.
    bool isOfPass() const { return m_isOfPass; }
    /// Has the next pass delete the item.
    void setOfPass() { m_isOfPass = true; }

private:
    bool m_isOfPass = false;
};

namespace uiutils {

/// The list that the passes of a save share: the page renderer draws what the HTML pass appends. Each pass first
/// deletes the items of earlier ones. What an application appends stays in the list and remains the application's: it
/// is printed before what the next pass appends, and is removed only when the application takes it off the list and
/// deletes it.
UIUTILS_EXPORT QList<ReportItem*>& sharedReportItems();

/// Deletes the items that passes have made and removes them from the list; others stay.
UIUTILS_EXPORT void deleteItemsOfPasses(QList<ReportItem*>& items);

} // namespace uiutils
