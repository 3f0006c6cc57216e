#pragma once

#include <QFont>
#include <QRawFont>
#include <QStringView>

#include <array>
#include <memory>

namespace uiutils {

/// A font on a paper device. It measures each glyph once, instead of each text.
///
/// Most texts of a report can be set glyph by glyph. Those that cannot (joined and right-to-left scripts, combining
/// marks, characters that the font lacks) are for QTextLayout.
class PageFont
{
public:
    /// The glyph of one character. A negative advance means that the character cannot be set by itself.
    struct Glyph
    {
        quint32 index = 0;
        float advance = -1;
    };

    PageFont(const QFont& font, QPaintDevice* device);

    const QFont& font() const { return m_font; }
    const QRawFont& raw() const { return m_raw; }
    /// From the top of a line to its base line; like all lengths here in units of the device.
    qreal ascent() const { return m_ascent; }
    /// From line to line.
    qreal lineHeight() const { return m_lineHeight; }

    const Glyph& glyph(QChar character) const
    {
        const std::unique_ptr<Block>& block = m_blocks[character.unicode() >> 8];
        return (block ? *block : loadBlock(character.row()))[character.cell()];
    }

    /// The width of a text that can be set glyph by glyph; negative for any other.
    qreal plainWidth(QStringView text) const;

private:
    using Block = std::array<Glyph, 256>;

    const Block& loadBlock(uchar row) const;

    QFont m_font;
    QRawFont m_raw;
    qreal m_ascent;
    qreal m_lineHeight;
    mutable std::array<std::unique_ptr<Block>, 256> m_blocks;
};

} // namespace uiutils
