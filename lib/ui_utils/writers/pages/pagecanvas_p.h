#pragma once

#include "writers/pages/wrappedtext_p.h"

#include <QColor>
#include <QHash>
#include <QImage>
#include <QPointF>
#include <QRectF>
#include <QVector>

#include <memory>
#include <vector>

class QPainter;
class QTextLine;

namespace uiutils {

class PageFont;
class PageStyle;

/// What report items draw themselves on: a painter on a page, and the style of the pages.
///
/// Plain text is gathered and drawn a run at a time, in the order in which it came: readers that copy text follow the
/// order of drawing.
class PageCanvas
{
public:
    PageCanvas(QPainter& painter, const PageStyle& style);
    ~PageCanvas();
    Q_DISABLE_COPY_MOVE(PageCanvas)

    const PageStyle& style() const { return m_style; }

    void fill(const QRectF& rectangle, const QColor& color) { fill(QVector<QRectF> {rectangle}, color); }
    void fill(const QVector<QRectF>& rectangles, const QColor& color);
    /// A frame that lies inside of the rectangle.
    void frame(const QRectF& rectangle, const QColor& color);

    /// Draws `text` into a box as wide as `width`, from its line `begin` to before `end`.
    void drawText(const PageFont& font, const QString& text, const QPointF& topLeft, qreal width,
            Qt::Alignment alignment, const QColor& color, int begin, int end);
    /// Forgets the lines of texts that were drawn in part. To be called behind the last part of them.
    void forgetParts() { m_parted.clear(); }
    /// Draws one line of a text that can be set glyph by glyph.
    void drawPlain(const PageFont& font, QStringView text, const QPointF& baseLine, const QColor& color);
    void drawShaped(const QTextLine& line, const QPointF& baseLine, const QColor& color);

    void drawImage(const QImage& image, const QRectF& place);
    /// Draws an encoded image. The same bytes are decoded, and stored in the file, once.
    void drawImage(const QByteArray& encoded, const QRectF& place);

    /// Draws the text that was gathered. To be called before the page is left.
    void flush();

private:
    struct Parted
    {
        const PageFont* font;
        QString text;
        qreal width;
        std::unique_ptr<WrappedText> lines;
    };

    const WrappedText* findParted(const PageFont& font, const QString& text, qreal width) const;

    QPainter& m_painter;
    const PageStyle& m_style;
    const PageFont* m_font = nullptr;
    QColor m_color;
    QVector<quint32> m_glyphs;
    QVector<QPointF> m_positions;
    // Cells that go on over a hundred pages are broken into lines once.
    std::vector<Parted> m_parted;
    QHash<QByteArray, QImage> m_images;
};

} // namespace uiutils
