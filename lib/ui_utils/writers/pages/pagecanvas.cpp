#include "writers/pages/pagecanvas_p.h"

#include "core/statusword_p.h"
#include "writers/emitter/pdfdocument_p.h"
#include "writers/pages/pagefont_p.h"
#include "writers/pages/pageimage_p.h"
#include "writers/pages/pagepainter_p.h"
#include "writers/pages/pagestyle_p.h"
#include "writers/pages/statusicons_p.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QImage>
#include <QPainter>

namespace uiutils {

namespace {

/// "Bypass" does not say "Pass".
bool hasWord(const QString& text, const QString& word)
{
    const auto isLetter = [&](int at) { return at >= 0 && at < text.size() && text.at(at).isLetterOrNumber(); };
    int at = text.indexOf(word, 0, Qt::CaseInsensitive);
    while (at >= 0 && (isLetter(at - 1) || isLetter(at + word.size())))
        at = text.indexOf(word, at + 1, Qt::CaseInsensitive);
    return at >= 0;
}

} // namespace

PageCanvas::PageCanvas(pdf::DocumentWriter& writer, const PageStyle& style)
    : m_writer(writer)
    , m_style(style)
    , m_structure(writer)
{
}

PageCanvas::~PageCanvas() = default;

void PageCanvas::fill(const QVector<QRectF>& rectangles, const QColor& color)
{
    const auto mark = m_structure.artifact(pdf::PageContent::Anything);
    m_writer.content().fill(rectangles, color);
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

pdf::EmbeddedFont& PageCanvas::embedded(const PageFont& font)
{
    pdf::EmbeddedFont*& embedded = m_fonts[&font];
    if (!embedded)
        embedded = m_writer.font(font.raw());
    return *embedded;
}

void PageCanvas::setRow(const PageFont& font, QStringView text)
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

void PageCanvas::drawPlain(const PageFont& font, QStringView text, const QPointF& baseLine, const QColor& color)
{
    if (text.isEmpty())
        return;
    setRow(font, text);
    m_writer.content().show(m_row, baseLine, color);
}

void PageCanvas::drawInvisibly(const PageFont& font, const QString& text, const QRectF& place)
{
    const qreal width = font.plainWidth(text);
    if (width <= 0)
        return;
    setRow(font, text);
    m_writer.content().showInvisibly(m_row, {place.left(), place.top() + font.ascent()}, width, place.width());
}

void PageCanvas::drawShaped(
        const PageFont& font, const QTextLayout& layout, int line, const QPointF& baseLine, const QColor& color)
{
    ShapedText(m_writer, font, &m_pictures, &m_missing).draw(layout, line, baseLine, color);
}

void PageCanvas::drawStatusIcon(int status, const QRectF& place)
{
    const auto mark = m_structure.artifact(pdf::PageContent::Anything);
    drawImage(m_style.statusIcon(status), place);
}

void PageCanvas::drawStatusWord(int status, const QString& beside, const QRectF& icon)
{
    const QString word = statusWord(status);
    if (!hasWord(beside, word))
        drawInvisibly(m_style.body, word + QLatin1Char(' '), icon);
}

void PageCanvas::drawImage(const QImage& image, const QRectF& place)
{
    m_writer.content().image(m_writer.image(image), place);
}

void PageCanvas::drawImage(const QByteArray& encoded, const QRectF& place)
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

void PageCanvas::flush()
{
    if (m_pictures.waiting.isEmpty())
        return;
    const auto mark = m_structure.artifact(pdf::PageContent::Anything);
    m_pictures.draw(m_writer);
}

void PageCanvas::paint(const QRectF& place, const std::function<void(QPainter&)>& draw)
{
    const auto mark = m_structure.figure(QCoreApplication::translate("ReportPDF", "Drawing"));
    PagePainter device(m_writer, m_style.body, &m_missing, m_style.points(1), place);
    QPainter painter(&device);
    QFont font(m_style.body.font(), &device);
    font.setPixelSize(qRound(font.pointSizeF()));
    painter.setFont(font);
    painter.setPen(m_style.ink);
    painter.setBrush(Qt::NoBrush);
    draw(painter);
}

} // namespace uiutils
