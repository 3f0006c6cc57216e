#include "writers/reportheader.h"

#include "writers/pagestyle_p.h"
#include "writers/textblock_p.h"

ReportHeader::ReportHeader(int level, const QString& text)
    : m_level(qBound(1, level, 3))
    , m_text(text)
{
}

ReportHeader::~ReportHeader() = default;

void ReportHeader::measure(const uiutils::PageStyle& style, const QSizeF& page)
{
    const uiutils::PageFont& font = style.headings[size_t(m_level - 1)];
    m_block = std::make_unique<uiutils::TextBlock>(font, m_text, page.width(), style.accent);
    m_block->setSpaceAbove(style.points(m_level == 1 ? 16 : 12));
    if (m_level == 1)
        m_block->setRuleBelow(style.points(1), style.points(2));
}

void ReportHeader::release()
{
    m_block.reset();
}

ReportItem::Position ReportHeader::end() const
{
    return m_block->end();
}

ReportItem::Portion ReportHeader::split(const Position& begin, qreal room, bool isWholePage) const
{
    return m_block->split(begin, room, isWholePage);
}

void ReportHeader::draw(uiutils::PageCanvas& canvas, const Portion& portion, const QPointF& topLeft) const
{
    m_block->draw(canvas, portion, topLeft);
}

qreal ReportHeader::spaceAbove() const
{
    return m_block->spaceAbove();
}
