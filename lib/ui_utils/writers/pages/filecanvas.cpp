#include "writers/pages/filecanvas_p.h"

#include "writers/emitter/pdfdocument_p.h"
#include "writers/pages/pagefont_p.h"
#include "writers/pages/pageimage_p.h"
#include "writers/pages/pagepainter_p.h"
#include "writers/pages/pagestyle_p.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QImage>
#include <QPainter>

namespace uiutils {

FileCanvas::FileCanvas(pdf::DocumentWriter& writer, const PageStyle& style)
    : PageCanvas(style, PageStructure(&writer))
    , m_writer(writer)
{
}

FileCanvas::~FileCanvas() = default;

void FileCanvas::fill(const QVector<QRectF>& rectangles, const QColor& color)
{
    const auto mark = structure().artifact(pdf::PageContent::Anything);
    m_writer.content().fill(rectangles, color);
}

pdf::EmbeddedFont& FileCanvas::embedded(const PageFont& font)
{
    pdf::EmbeddedFont*& embedded = m_fonts[&font];
    if (!embedded)
        embedded = m_writer.font(font.raw());
    return *embedded;
}

void FileCanvas::setRow(const PageFont& font, QStringView text)
{
    pdf::EmbeddedFont& embedded = this->embedded(font);
    m_row.font = &embedded;
    m_row.size = font.size();
    m_row.isThickened = font.isThickened(font.raw());
    m_row.glyphs.resize(int(text.size()));
    m_row.gaps.resize(int(text.size()));
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        const quint16 glyph = font.glyph(c).index;
        embedded.use(glyph, c);
        m_row.glyphs[i] = glyph;
        m_row.gaps[i] = i + 1 < text.size() ? float(font.kerning(c, text.at(i + 1))) : 0;
    }
}

void FileCanvas::drawPlain(const PageFont& font, QStringView text, const QPointF& baseLine, const QColor& color)
{
    if (text.isEmpty())
        return;
    setRow(font, text);
    m_writer.content().show(m_row, baseLine, color);
}

void FileCanvas::drawInvisibly(const PageFont& font, const QString& text, const QRectF& place)
{
    const qreal width = font.plainWidth(text);
    if (width <= 0)
        return;
    setRow(font, text);
    m_writer.content().showInvisibly(m_row, {place.left(), place.top() + font.ascent()}, width, place.width());
}

void FileCanvas::drawShaped(
        const PageFont& font, const QTextLayout& layout, int line, const QPointF& baseLine, const QColor& color)
{
    ShapedText(m_writer, font, &m_pictures, &m_missing).draw(layout, line, baseLine, color);
}

void FileCanvas::drawImage(const QImage& image, const QRectF& place)
{
    m_writer.content().image(m_writer.image(image), place);
}

void FileCanvas::drawImage(const QByteArray& encoded, const QRectF& place)
{
    QByteArray& name = m_images[QCryptographicHash::hash(encoded, QCryptographicHash::Sha1)];
    if (name.isEmpty()) {
        const QImage image = decodedImage(encoded);
        if (image.isNull())
            return;
        name = m_writer.image(image);
    }
    m_writer.content().image(name, place);
}

void FileCanvas::flush()
{
    if (m_pictures.isEmpty())
        return;
    const auto mark = structure().artifact(pdf::PageContent::Anything);
    drawPictures(m_writer, m_pictures);
    m_pictures.clear();
}

void FileCanvas::paint(const QRectF& place, const std::function<void(QPainter&)>& draw)
{
    const auto mark = structure().figure(QCoreApplication::translate("ReportPDF", "Drawing"));
    PagePainter device(m_writer, style().body, &m_missing, style().points(1), place);
    QPainter painter(&device);
    setTextStyle(painter, style());
    draw(painter);
}

} // namespace uiutils
