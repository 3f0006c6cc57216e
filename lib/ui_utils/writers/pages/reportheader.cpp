#include "writers/pages/reportheader.h"

#include "writers/pages/pagestyle_p.h"
#include "writers/pages/textblock_p.h"

ReportHeader::ReportHeader(int level, const QString& text)
    : ReportText(text)
    , m_level(qBound(1, level, 3))
{
}

ReportHeader::~ReportHeader() = default;

void ReportHeader::measure(const uiutils::PageStyle& style, const QSizeF& page)
{
    const uiutils::PageFont& font = style.headings[size_t(m_level - 1)];
    auto block = std::make_unique<uiutils::TextBlock>(font, text(), page.width(), style.accent);
    constexpr const char* tags[] {"/H1", "/H2", "/H3"};
    block->setTag(tags[m_level - 1]);
    block->setHeading(text());
    block->setSpaceAbove(style.points(m_level == 1 ? 16 : 12));
    if (m_level == 1)
        block->setRuleBelow(style.points(1), style.points(2));
    setBlock(std::move(block));
}
