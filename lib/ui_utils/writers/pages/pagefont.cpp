#include "writers/pages/pagefont_p.h"

#include <QFontMetricsF>

#include <cmath>

namespace uiutils {

namespace {

/// A sixteenth of a unit is invisible, and the page then repeats few different numbers, which compress well.
constexpr qreal advanceSteps = 16;

bool isSetByItself(QChar c)
{
    switch (c.category()) {
    case QChar::Mark_NonSpacing:
    case QChar::Mark_SpacingCombining:
    case QChar::Mark_Enclosing:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_Surrogate:
    case QChar::Other_PrivateUse:
    case QChar::Other_NotAssigned:
        return false;
    default:
        break;
    }
    switch (c.direction()) {
    case QChar::DirR:
    case QChar::DirAL:
    case QChar::DirAN:
        return false;
    default:
        break;
    }
    switch (c.script()) {
    case QChar::Script_Common:
    case QChar::Script_Latin:
    case QChar::Script_Greek:
    case QChar::Script_Cyrillic:
        return true;
    default:
        return false;
    }
}

} // namespace

PageFont::PageFont(const QFont& font, QPaintDevice* device)
    : m_font(font, device)
{
    // With hinting for a screen, glyphs would be spaced unevenly on paper.
    m_font.setHintingPreference(QFont::PreferNoHinting);
    m_raw = QRawFont::fromFont(m_font);
    const QFontMetricsF metrics(m_font, device);
    m_ascent = metrics.ascent();
    m_lineHeight = std::ceil(metrics.height());
}

qreal PageFont::plainWidth(QStringView text) const
{
    qreal width = 0;
    for (const QChar c : text) {
        const qreal advance = glyph(c).advance;
        if (advance < 0)
            return -1;
        width += advance;
    }
    return width;
}

const PageFont::Block& PageFont::loadBlock(uchar row) const
{
    auto block = std::make_unique<Block>();
    for (int cell = 0; cell < int(block->size()); ++cell) {
        const QChar character(uchar(cell), row);
        if (!isSetByItself(character))
            continue;
        // The font's own table lacks glyphs for some spaces that look the same.
        const bool isBlank = character.category() == QChar::Separator_Space && character.unicode() == 0xa0;
        const QVector<quint32> glyphs = m_raw.glyphIndexesForString(isBlank ? QStringLiteral(" ") : QString(character));
        if (glyphs.size() != 1 || glyphs.constFirst() == 0)
            continue;
        const qreal advance = m_raw.advancesForGlyphIndexes(glyphs).constFirst().x();
        (*block)[size_t(cell)] = {glyphs.constFirst(), float(std::round(advance * advanceSteps) / advanceSteps)};
    }
    m_blocks[row] = std::move(block);
    return *m_blocks[row];
}

} // namespace uiutils
