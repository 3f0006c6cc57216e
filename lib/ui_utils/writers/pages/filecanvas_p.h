#pragma once

#include "writers/pages/pagecanvas_p.h"
#include "writers/pages/shapedtext_p.h"

#include <QHash>

namespace uiutils {

/// The page of a PDF file that is being written.
class FileCanvas final : public PageCanvas
{
public:
    FileCanvas(pdf::DocumentWriter& writer, const PageStyle& style);
    ~FileCanvas() override;

    using PageCanvas::fill;
    void fill(const QVector<QRectF>& rectangles, const QColor& color) override;
    void drawPlain(const PageFont& font, QStringView text, const QPointF& baseLine, const QColor& color) override;
    void drawShaped(const PageFont& font, const QTextLayout& layout, int line, const QPointF& baseLine,
            const QColor& color) override;
    void drawInvisibly(const PageFont& font, const QString& text, const QRectF& place) override;
    void drawImage(const QImage& image, const QRectF& place) override;
    /// The same bytes are decoded once, and stored in the file once.
    void drawImage(const QByteArray& encoded, const QRectF& place) override;
    void paint(const QRectF& place, const std::function<void(QPainter&)>& draw) override;
    void flush() override;

    /// The characters of all pages that no font has.
    const QString& missing() const { return m_missing; }

private:
    pdf::EmbeddedFont& embedded(const PageFont& font);
    void setRow(const PageFont& font, QStringView text);

    pdf::DocumentWriter& m_writer;
    QHash<const PageFont*, pdf::EmbeddedFont*> m_fonts;
    // Kept for its memory.
    pdf::PageContent::Row m_row;
    QHash<QByteArray, QByteArray> m_images;
    QVector<GlyphPicture> m_pictures;
    QString m_missing;
};

} // namespace uiutils
