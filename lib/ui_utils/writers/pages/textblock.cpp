#include "writers/pages/textblock_p.h"

#include "writers/pages/pagecanvas_p.h"
#include "writers/pages/pageflow_p.h"
#include "writers/pages/pagefont_p.h"
#include "writers/pages/readingside_p.h"

namespace uiutils {

TextBlock::TextBlock(const PageFont& font, const QString& text, qreal width, const QColor& color)
    : m_font(font)
    , m_lines(font, text, width)
    , m_width(width)
    , m_color(color)
    , m_alignment(readingSideOf(text))
{
}

void TextBlock::setRuleBelow(qreal thickness, qreal distance)
{
    m_ruleThickness = thickness;
    m_ruleDistance = distance;
}

ReportItem::Portion TextBlock::split(const ReportItem::Position& begin, qreal room, bool isWholePage) const
{
    ReportItem::Portion portion
            = takeLines(m_lines.lineCount(), m_font.lineHeight(), begin.row, room - ruleHeight(), isWholePage);
    if (portion.end == end())
        portion.height += ruleHeight();
    return portion;
}

void TextBlock::draw(PageCanvas& canvas, const ReportItem::Portion& portion, const QPointF& topLeft) const
{
    if (!m_heading.isEmpty())
        canvas.structure().setHeading(m_heading);
    {
        const auto mark = canvas.structure().text(m_tag);
        m_lines.draw(canvas, topLeft, m_width, m_alignment, m_color, portion.begin.row, portion.end.row);
    }
    if (portion.end == end())
        canvas.structure().endText();
    if (m_ruleThickness > 0 && portion.end == end())
        canvas.fill(
                QRectF(topLeft.x(), topLeft.y() + portion.height - m_ruleThickness, m_width, m_ruleThickness), m_color);
}

} // namespace uiutils
