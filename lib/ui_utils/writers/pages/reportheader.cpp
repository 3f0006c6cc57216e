#include "writers/pages/reportheader.h"

#include "writers/pages/pagestyle_p.h"
#include "writers/pages/textblock_p.h"

namespace {

constexpr const char* tags[] {"/H1", "/H2", "/H3", "/H4", "/H5", "/H6"};
/// Above a heading, in points.
constexpr int spaces[] {16, 12, 12, 10, 8, 8};

} // namespace

ReportHeader::ReportHeader(int level, const QString& text)
    : ReportText(text)
    , m_level(qBound(1, level, int(std::size(tags))))
{
}

ReportHeader::~ReportHeader() = default;

void ReportHeader::measure(const uiutils::PageStyle& style, const QSizeF& page)
{
    auto block = std::make_unique<uiutils::TextBlock>(
            style.headingFont(m_level), text(), page.width(), style.headingColor(m_level));
    block->setTag(tags[m_level - 1]);
    block->setHeading(text());
    block->setSpaceAbove(style.points(spaces[m_level - 1]));
    if (m_level == 1)
        block->setRuleBelow(style.points(1), style.points(2));
    setBlock(std::move(block));
}
