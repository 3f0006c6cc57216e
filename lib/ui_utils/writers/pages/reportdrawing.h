#pragma once

#include "writers/pages/reportitem.h"

#include <memory>

class QPainter;

namespace uiutils {
class ReportDrawingPrivate;
}

/// A drawing of the application's own in a printed report: derive from it, say how high it is, and paint it.
///
/// A drawing takes the full width of the page and is never divided: one that does not fit below what precedes it is on
/// the next page. A drawing as high as the page has a page of its own. Lengths are in points, 1/72 inch.
///
/// Both virtuals are called while the report is printed, from the GUI thread. paint() is called once in each print.
class UIUTILS_EXPORT ReportDrawing : public ReportItem
{
public:
    ReportDrawing();
    ~ReportDrawing() override;

    void measure(const uiutils::PageStyle& style, const QSizeF& page) override;
    Position end() const override;
    Portion split(const Position& begin, qreal room, bool isWholePage) const override;
    void draw(uiutils::PageCanvas& canvas, const Portion& portion, const QPointF& topLeft) const override;
    qreal spaceAbove() const override;

    /// What the drawing shows, for those who have the pages read aloud: "Drawing" by default.
    void setDescription(const QString& description);

protected:
    /// How high the drawing is on pages that have `page` for contents. The page's height is the maximum; a drawing of
    /// no height takes no space and is not painted.
    virtual qreal height(const QSizeF& page) const = 0;
    /// Paints the drawing from (0, 0) to `size`; what is painted outside is not shown. `size` is lower than height()
    /// asked for where a heading shares the page with a drawing of the page's height. The painter has the font and the
    /// colour of the report's texts, and its units are points: give a font its size by setPixelSize(), which counts
    /// them too.
    virtual void paint(QPainter& painter, const QSizeF& size) const = 0;

private:
    const std::unique_ptr<uiutils::ReportDrawingPrivate> d;
};
