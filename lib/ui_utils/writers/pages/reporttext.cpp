#include "writers/pages/reporttext.h"

#include "writers/pages/pagestyle_p.h"
#include "writers/pages/textblock_p.h"

ReportText::ReportText(const QString& text)
    : m_text(text)
{
}

ReportText::~ReportText() = default;

void ReportText::measure(const uiutils::PageStyle& style, const QSizeF& page)
{
    auto block = std::make_unique<uiutils::TextBlock>(style.body, m_text, page.width(), style.ink);
    block->setSpaceAbove(style.points(5));
    setBlock(std::move(block));
}

void ReportText::setBlock(std::unique_ptr<uiutils::TextBlock> block)
{
    m_block = std::move(block);
}

void ReportText::release()
{
    m_block.reset();
}

ReportItem::Position ReportText::end() const
{
    return m_block->end();
}

ReportItem::Portion ReportText::split(const Position& begin, qreal room, bool isWholePage) const
{
    return m_block->split(begin, room, isWholePage);
}

void ReportText::draw(uiutils::PageCanvas& canvas, const Portion& portion, const QPointF& topLeft) const
{
    m_block->draw(canvas, portion, topLeft);
}

qreal ReportText::spaceAbove() const
{
    return m_block->spaceAbove();
}
