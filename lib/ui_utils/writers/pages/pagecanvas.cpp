#include "writers/pages/pagecanvas_p.h"

#include "core/statusword_p.h"
#include "writers/pages/pagefont_p.h"
#include "writers/pages/pagestyle_p.h"
#include "writers/pages/statusicons_p.h"

#include <QImage>
#include <QPainter>

namespace uiutils {

namespace {

/// "Passed" says "Pass"; "Bypass" and "Passive" do not.
bool hasWord(const QString& text, const QString& word)
{
    constexpr int longestEnding = 2;
    const auto isLetter = [&](int at) { return at >= 0 && at < text.size() && text.at(at).isLetterOrNumber(); };
    for (int at = text.indexOf(word, 0, Qt::CaseInsensitive); at >= 0;
            at = text.indexOf(word, at + 1, Qt::CaseInsensitive)) {
        int end = at + word.size();
        while (isLetter(end))
            ++end;
        if (!isLetter(at - 1) && end - at - word.size() <= longestEnding)
            return true;
    }
    return false;
}

} // namespace

PageCanvas::PageCanvas(const PageStyle& style, const PageStructure& structure)
    : m_style(style)
    , m_structure(structure)
{
}

PageCanvas::~PageCanvas() = default;

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
        // A row that was read anew for another page has other strings of the same text.
        if (parted.font == &font && qFuzzyCompare(parted.width, width) && parted.text == text)
            return parted.lines.get();
    }
    return nullptr;
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

void PageCanvas::setTextStyle(QPainter& painter, const PageStyle& style)
{
    QFont font = style.body.font();
    font.setPixelSize(qRound(font.pointSizeF()));
    painter.setFont(font);
    painter.setPen(style.ink);
    painter.setBrush(Qt::NoBrush);
}

} // namespace uiutils
