#include "writers/pages/pagecanvas_p.h"

#include "writers/pages/pagefont_p.h"
#include "writers/pages/pageimage_p.h"
#include "writers/pages/pagestyle_p.h"

#include <QGlyphRun>
#include <QPainter>
#include <QTextLine>

namespace uiutils {

namespace {

/// Decoded images that are kept in memory.
constexpr int maximumImages = 8;

} // namespace

PageCanvas::PageCanvas(QPainter& painter, const PageStyle& style)
    : m_painter(painter)
    , m_style(style)
{
    // Lossy compression would damage the thin lines and letters of a plot.
    m_painter.setRenderHint(QPainter::LosslessImageRendering);
    m_painter.setRenderHint(QPainter::SmoothPixmapTransform);
}

PageCanvas::~PageCanvas()
{
    flush();
}

void PageCanvas::fill(const QVector<QRectF>& rectangles, const QColor& color)
{
    flush();
    m_painter.setPen(Qt::NoPen);
    m_painter.setBrush(color);
    m_painter.drawRects(rectangles);
}

void PageCanvas::frame(const QRectF& rectangle, const QColor& color)
{
    const qreal width = m_style.hairline;
    const qreal inner = rectangle.height() - 2 * width;
    fill({QRectF(rectangle.left(), rectangle.top(), rectangle.width(), width),
                 QRectF(rectangle.left(), rectangle.bottom() - width, rectangle.width(), width),
                 QRectF(rectangle.left(), rectangle.top() + width, width, inner),
                 QRectF(rectangle.right() - width, rectangle.top() + width, width, inner)},
            color);
}

void PageCanvas::drawText(const PageFont& font, const QString& text, const QPointF& topLeft, qreal width,
        Qt::Alignment alignment, const QColor& color, int begin, int end)
{
    if (const WrappedText* lines = findParted(font, text, width)) {
        lines->draw(*this, topLeft, width, alignment, color, begin, end);
        return;
    }
    const qreal plainWidth = font.plainWidth(text);
    if (plainWidth < 0 || plainWidth > width) {
        auto lines = std::make_unique<WrappedText>(font, text, width);
        lines->draw(*this, topLeft, width, alignment, color, begin, end);
        if (end < lines->lineCount())
            m_parted.push_back({&font, text, width, std::move(lines)});
        return;
    }
    if (begin > 0 || end < 1 || text.isEmpty())
        return;
    const qreal spare = width - plainWidth;
    const qreal indent = alignment & Qt::AlignHCenter ? spare / 2 : alignment & Qt::AlignRight ? spare : 0;
    drawPlain(font, text, {topLeft.x() + indent, topLeft.y() + font.ascent()}, color);
}

const WrappedText* PageCanvas::findParted(const PageFont& font, const QString& text, qreal width) const
{
    for (const Parted& parted : m_parted) {
        // Shared data means the same text; comparing megabytes for each page would be no better than wrapping them.
        if (parted.font == &font && qFuzzyCompare(parted.width, width) && parted.text.constData() == text.constData())
            return parted.lines.get();
    }
    return nullptr;
}

void PageCanvas::drawPlain(const PageFont& font, QStringView text, const QPointF& baseLine, const QColor& color)
{
    if (m_font != &font || m_color != color) {
        flush();
        m_font = &font;
        m_color = color;
    }
    qreal x = baseLine.x();
    for (const QChar c : text) {
        const PageFont::Glyph& glyph = font.glyph(c);
        m_glyphs += glyph.index;
        m_positions += QPointF(x, baseLine.y());
        x += glyph.advance;
    }
}

void PageCanvas::drawShaped(const QTextLine& line, const QPointF& baseLine, const QColor& color)
{
    flush();
    m_painter.setPen(color);
    line.draw(&m_painter, {baseLine.x(), baseLine.y() - line.ascent()});
}

void PageCanvas::drawImage(const QImage& image, const QRectF& place)
{
    flush();
    m_painter.drawImage(place, image);
}

void PageCanvas::drawImage(const QByteArray& encoded, const QRectF& place)
{
    auto it = m_images.find(encoded);
    if (it == m_images.end()) {
        if (m_images.size() >= maximumImages)
            m_images.clear();
        it = m_images.insert(encoded, decodedImage(encoded));
    }
    if (!it->isNull())
        drawImage(*it, place);
}

void PageCanvas::paint(const QRectF& place, const std::function<void(QPainter&)>& draw)
{
    flush();
    m_painter.save();
    m_painter.setClipRect(place);
    m_painter.translate(place.topLeft());
    m_painter.scale(m_style.points(1), m_style.points(1));
    QFont font = m_style.body.font();
    font.setPixelSize(qRound(font.pointSizeF()));
    m_painter.setFont(font);
    m_painter.setPen(m_style.ink);
    m_painter.setBrush(Qt::NoBrush);
    draw(m_painter);
    m_painter.restore();
}

void PageCanvas::flush()
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
