#include "writers/pages/paintercanvas_p.h"

#include "writers/pages/pagefont_p.h"
#include "writers/pages/pageimage_p.h"
#include "writers/pages/pagestyle_p.h"

#include <QGlyphRun>
#include <QPainter>
#include <QTextLine>

namespace uiutils {

PainterCanvas::PainterCanvas(QPainter& painter, const PageStyle& style)
    : PageCanvas(style, PageStructure(nullptr))
    , m_painter(painter)
{
    // Lossy compression would damage the thin lines and letters of a plot.
    m_painter.setRenderHints(
            QPainter::Antialiasing | QPainter::SmoothPixmapTransform | QPainter::LosslessImageRendering);
}

PainterCanvas::~PainterCanvas() = default;

void PainterCanvas::fill(const QVector<QRectF>& rectangles, const QColor& color)
{
    flush();
    m_painter.setPen(Qt::NoPen);
    m_painter.setBrush(color);
    m_painter.drawRects(rectangles);
}

void PainterCanvas::drawPlain(const PageFont& font, QStringView text, const QPointF& baseLine, const QColor& color)
{
    if (m_font != &font || m_color != color) {
        flush();
        m_font = &font;
        m_color = color;
    }
    qreal x = baseLine.x();
    QChar before;
    for (const QChar c : text) {
        const PageFont::Glyph& glyph = font.glyph(c);
        // Kerning moves a glyph, and its advance belongs to the one after it.
        x += before.isNull() ? 0 : font.advance(before, c) - glyph.advance;
        m_glyphs += glyph.index;
        m_positions += QPointF(x, baseLine.y());
        x += glyph.advance;
        before = c;
    }
}

void PainterCanvas::drawShaped(
        const PageFont&, const QTextLayout& layout, int line, const QPointF& baseLine, const QColor& color)
{
    flush();
    m_painter.setPen(color);
    const QTextLine shaped = layout.lineAt(line);
    shaped.draw(&m_painter, {baseLine.x(), baseLine.y() - shaped.ascent()});
}

void PainterCanvas::drawInvisibly(const PageFont&, const QString&, const QRectF&) { }

void PainterCanvas::drawImage(const QImage& image, const QRectF& place)
{
    flush();
    m_painter.drawImage(place, image);
}

void PainterCanvas::drawImage(const QByteArray& encoded, const QRectF& place)
{
    const QImage image = decodedImage(encoded);
    if (!image.isNull())
        drawImage(image, place);
}

void PainterCanvas::paint(const QRectF& place, const std::function<void(QPainter&)>& draw)
{
    flush();
    m_painter.save();
    m_painter.setClipRect(place, Qt::IntersectClip);
    m_painter.translate(place.topLeft());
    m_painter.scale(style().points(1), style().points(1));
    setTextStyle(m_painter, style());
    draw(m_painter);
    m_painter.restore();
}

void PainterCanvas::flush()
{
    if (m_glyphs.isEmpty())
        return;
    QGlyphRun run;
    run.setRawFont(m_font->raw());
    run.setRawData(m_glyphs.constData(), m_positions.constData(), m_glyphs.size());
    m_painter.setPen(m_color);
    m_painter.drawGlyphRun({}, run);
    // Keeps the memory for the next run.
    m_glyphs.resize(0);
    m_positions.resize(0);
}

} // namespace uiutils
