#pragma once

#include "writers/pages/pagecanvas_p.h"

namespace uiutils {

/// A page on a screen or on paper. What only readers of files get, such as the words behind icons, is left out.
class PainterCanvas final : public PageCanvas
{
public:
    /// The painter's units are those of the layout, from the page's top left corner.
    PainterCanvas(QPainter& painter, const PageStyle& style);
    ~PainterCanvas() override;

    using PageCanvas::fill;
    void fill(const QVector<QRectF>& rectangles, const QColor& color) override;
    void drawPlain(const PageFont& font, QStringView text, const QPointF& baseLine, const QColor& color) override;
    void drawShaped(const PageFont& font, const QTextLayout& layout, int line, const QPointF& baseLine,
            const QColor& color) override;
    void drawInvisibly(const PageFont& font, const QString& text, const QRectF& place) override;
    void drawImage(const QImage& image, const QRectF& place) override;
    void drawImage(const QByteArray& encoded, const QRectF& place) override;
    void paint(const QRectF& place, const std::function<void(QPainter&)>& draw) override;
    void flush() override;

private:
    QPainter& m_painter;
    // Texts of one font and colour, which are drawn together.
    const PageFont* m_font = nullptr;
    QColor m_color;
    QVector<quint32> m_glyphs;
    QVector<QPointF> m_positions;
};

} // namespace uiutils
