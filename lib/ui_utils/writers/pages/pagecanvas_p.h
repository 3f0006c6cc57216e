#pragma once

#include "writers/pages/wrappedtext_p.h"

#include <QColor>
#include <QHash>
#include <QImage>
#include <QPointF>
#include <QRectF>
#include <QVector>

#include <functional>
#include <memory>
#include <vector>

class QPainter;
class QTextLine;

namespace uiutils {

class PageFont;
class PageStyle;

/// What report items draw on: a painter on a page, and the style of the pages.
///
/// Plain text is collected and drawn in runs, in the order of the calls: readers that copy text follow the order of
/// drawing.
class PageCanvas
{
public:
    PageCanvas(QPainter& painter, const PageStyle& style);
    ~PageCanvas();
    Q_DISABLE_COPY_MOVE(PageCanvas)

    const PageStyle& style() const { return m_style; }

    void fill(const QRectF& rectangle, const QColor& color) { fill(QVector<QRectF> {rectangle}, color); }
    void fill(const QVector<QRectF>& rectangles, const QColor& color);
    /// A frame inside the rectangle.
    void frame(const QRectF& rectangle, const QColor& color);

    /// Draws the lines of `text` from `begin` up to, but not including, `end` into a box of `width`.
    void drawText(const PageFont& font, const QString& text, const QPointF& topLeft, qreal width,
            Qt::Alignment alignment, const QColor& color, int begin, int end);
    /// Forgets the lines of texts that were drawn in part. To be called after their last part.
    void forgetParts() { m_parted.clear(); }
    /// Draws one line of a text that can be set glyph by glyph.
    void drawPlain(const PageFont& font, QStringView text, const QPointF& baseLine, const QColor& color);
    void drawShaped(const QTextLine& line, const QPointF& baseLine, const QColor& color);

    void drawImage(const QImage& image, const QRectF& place);
    /// Draws an encoded image. The same bytes are decoded once, and stored in the file once.
    void drawImage(const QByteArray& encoded, const QRectF& place);

    /// Has `draw` paint into `place` and nowhere else: from (0, 0), in points, with the font and the colour of texts.
    void paint(const QRectF& place, const std::function<void(QPainter&)>& draw);

    /// Draws the text that was collected. To be called at the end of each page.
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
    // A cell that continues over a hundred pages is broken into lines once.
    std::vector<Parted> m_parted;
    QHash<QByteArray, QImage> m_images;
};

} // namespace uiutils
