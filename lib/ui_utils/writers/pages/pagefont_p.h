#pragma once

#include <QFont>
#include <QRawFont>
#include <QStringView>

#include <array>
#include <memory>
#include <utility>
#include <vector>

class QTextLayout;

namespace uiutils {

/// A font on pages. It measures each glyph once, instead of each text.
///
/// Most texts of a report can be set glyph by glyph. Those that cannot (joined and right-to-left scripts, combining
/// marks, characters that the font lacks) are for QTextLayout.
class PageFont
{
public:
    /// The glyph of one character.
    struct Glyph
    {
        quint16 index = 0;
        /// The number of the character among those that were asked for pairs; 0 is none yet.
        mutable quint16 inPairs = 0;
        /// Negative if the character cannot be set by itself. Like all lengths here in units of the layout.
        float advance = -1;
    };

    /// `device` gives the units of the layout. The font has a size in points.
    PageFont(const QFont& font, QPaintDevice* device);
    ~PageFont();
    PageFont(PageFont&&) noexcept;

    const QFont& font() const { return m_font; }
    const QRawFont& raw() const { return m_raw; }
    /// In points.
    qreal size() const { return m_size; }
    /// From the top of a line to its base line.
    qreal ascent() const { return m_ascent; }
    /// From line to line.
    qreal lineHeight() const { return m_lineHeight; }

    const Glyph& glyph(QChar character) const
    {
        const std::unique_ptr<Block>& block = m_blocks[character.unicode() >> 8];
        return (block ? *block : loadBlock(character.row()))[character.cell()];
    }

    /// By how much two characters that can be set are moved apart, in whole thousandths of the size.
    int kerning(QChar left, QChar right) const
    {
        const int row = glyph(left).inPairs;
        const int column = glyph(right).inPairs;
        return row > 0 && column > 0 && (*m_pairs)[row][column] != unknownPair ? (*m_pairs)[row][column]
                                                                               : measurePair(left, right);
    }
    /// The advance of a character that can be set, after `before`, which is null at the beginning.
    qreal advance(QChar before, QChar character) const
    {
        const qreal own = glyph(character).advance;
        return before.isNull() ? own : own + kerning(before, character) * m_thousandth;
    }

    bool isEmbeddable() const { return m_isEmbeddable; }
    /// Whether a face that shows texts of the font is to be thickened, because it is not bold as asked. Qt itself says
    /// of any face that it is what was asked for.
    bool isThickened(const QRawFont& raw) const;
    /// Has fonts that cannot be embedded give way to others. Returns whether there is another one for a character of
    /// the layout, so that its text must be laid out again with font().
    bool replaceRefused(const QTextLayout& layout) const;

    /// The width of a text that can be set glyph by glyph; negative for any other.
    qreal plainWidth(QStringView text) const;

private:
    using Block = std::array<Glyph, 256>;
    static constexpr int mostInPairs = 160;
    static constexpr qint16 unknownPair = -32768;
    using Pairs = std::array<std::array<qint16, mostInPairs>, mostInPairs>;

    const Block& loadBlock(uchar row) const;
    int measurePair(QChar left, QChar right) const;
    int placeInPairs(const Glyph& glyph) const;
    int shapedKerning(QChar left, QChar right) const;
    bool isRefused(const QRawFont& raw) const;

    qreal m_size;
    qreal m_thousandth;
    mutable QFont m_font;
    QRawFont m_raw;
    bool m_isEmbeddable;
    bool m_isThickened;
    qreal m_ascent;
    qreal m_lineHeight;
    mutable std::array<std::unique_ptr<Block>, 256> m_blocks;
    // Fonts of other families that were asked about.
    mutable std::vector<std::pair<QRawFont, bool>> m_refused;
    mutable int m_inPairs = 0;
    mutable std::unique_ptr<Pairs> m_pairs;
};

} // namespace uiutils
