#pragma once

#include "writers/pages/pagestructure_p.h"
#include "writers/pages/wrappedtext_p.h"

#include <QColor>
#include <QPointF>
#include <QRectF>
#include <QVector>

#include <functional>
#include <memory>
#include <vector>

class QImage;
class QPainter;

namespace uiutils {

class PageFont;
class PageStyle;

/// What report items draw on: a page of a file, of paper or on a screen, the style of the pages, and what the content
/// is.
///
/// Texts are written in the order of the calls, which readers that copy text follow.
class PageCanvas
{
public:
    virtual ~PageCanvas();
    Q_DISABLE_COPY_MOVE(PageCanvas)

    const PageStyle& style() const { return m_style; }
    PageStructure& structure() { return m_structure; }

    /// Decoration, which no text belongs to.
    void fill(const QRectF& rectangle, const QColor& color) { fill(QVector<QRectF> {rectangle}, color); }
    virtual void fill(const QVector<QRectF>& rectangles, const QColor& color) = 0;
    /// A frame inside the rectangle.
    void frame(const QRectF& rectangle, const QColor& color);

    /// Draws the lines of `text` from `begin` up to, but not including, `end` into a box of `width`.
    void drawText(const PageFont& font, const QString& text, const QPointF& topLeft, qreal width,
            Qt::Alignment alignment, const QColor& color, int begin, int end);
    /// Forgets the lines of texts that were drawn in part. To be called after their last part.
    void forgetParts() { m_parted.clear(); }
    /// Draws one line of a text that can be set glyph by glyph.
    virtual void drawPlain(const PageFont& font, QStringView text, const QPointF& baseLine, const QColor& color) = 0;
    /// Draws one line of any other.
    virtual void drawShaped(
            const PageFont& font, const QTextLayout& layout, int line, const QPointF& baseLine, const QColor& color)
            = 0;
    /// Has readers copy `text`, which can be set glyph by glyph, from where a picture says the same.
    virtual void drawInvisibly(const PageFont& font, const QString& text, const QRectF& place) = 0;

    /// The icon of a status, which is decoration beside its word.
    void drawStatusIcon(int status, const QRectF& place);
    /// The word of a status, for those who search and copy; nothing if `beside`, the text beside the icon, says it.
    void drawStatusWord(int status, const QString& beside, const QRectF& icon);

    virtual void drawImage(const QImage& image, const QRectF& place) = 0;
    /// Draws an encoded image; nothing if it is none.
    virtual void drawImage(const QByteArray& encoded, const QRectF& place) = 0;

    /// Has `draw` paint into `place` and nowhere else: from (0, 0), in points, with the font and the colour of texts.
    virtual void paint(const QRectF& place, const std::function<void(QPainter&)>& draw) = 0;

    /// Draws what could not be drawn among texts. To be called at the end of each page.
    virtual void flush() { }

protected:
    PageCanvas(const PageStyle& style, const PageStructure& structure);

    /// Gives a painter the font and the colour of texts. Its units are points.
    static void setTextStyle(QPainter& painter, const PageStyle& style);

private:
    struct Parted
    {
        const PageFont* font;
        QString text;
        qreal width;
        std::unique_ptr<WrappedText> lines;
    };

    const WrappedText* findParted(const PageFont& font, const QString& text, qreal width) const;

    const PageStyle& m_style;
    PageStructure m_structure;
    // A cell that continues over a hundred pages is broken into lines once.
    std::vector<Parted> m_parted;
};

} // namespace uiutils
