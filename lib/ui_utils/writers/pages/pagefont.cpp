#include "writers/pages/pagefont_p.h"

#include "writers/emitter/fontmetrics_p.h"
#include "writers/emitter/fontprogram_p.h"
#include "writers/emitter/fonttable_p.h"
#include "writers/pages/fontchoice_p.h"

#include <QFontMetricsF>
#include <QGlyphRun>
#include <QPaintDevice>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace uiutils {

namespace {

/// Of a font in which one unit is a thousandth.
constexpr int thousandths = 1000;
constexpr qreal pointsOfAnInch = 72;

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

bool isBoldFace(const QRawFont& raw)
{
    // The least of the table's weights that counts as bold, and where it has the weight.
    constexpr int leastBold = 600;
    constexpr int place = 4;
    return pdf::FontTable(raw.fontTable("OS/2")).u16(place) >= leastBold;
}

} // namespace

PageFont::PageFont(const QFont& font, QPaintDevice* device)
    : m_size(font.pointSizeF())
    , m_thousandth(m_size * device->logicalDpiY() / pointsOfAnInch / thousandths)
    , m_font(font, device)
    , m_pairs(std::make_unique<Pairs>())
{
    // With hinting for a screen, glyphs would be spaced unevenly on paper.
    m_font.setHintingPreference(QFont::PreferNoHinting);
    m_raw = QRawFont::fromFont(m_font);
    m_isEmbeddable = pdf::embeddingOf(m_raw) == pdf::Embedding::Allowed;
    m_isThickened = m_font.bold() && !isBoldFace(m_raw);
    const QFontMetricsF metrics(m_font, device);
    m_ascent = metrics.ascent();
    m_lineHeight = std::ceil(metrics.height());
    for (auto& row : *m_pairs)
        row.fill(unknownPair);
}

PageFont::~PageFont() = default;
PageFont::PageFont(PageFont&&) noexcept = default;

qreal PageFont::plainWidth(QStringView text) const
{
    qreal width = 0;
    int kerned = 0;
    QChar before;
    for (const QChar c : text) {
        const qreal advance = glyph(c).advance;
        if (advance < 0)
            return -1;
        width += advance;
        kerned += before.isNull() ? 0 : kerning(before, c);
        before = c;
    }
    return width + kerned * m_thousandth;
}

const PageFont::Block& PageFont::loadBlock(uchar row) const
{
    auto block = std::make_unique<Block>();
    if (!m_isEmbeddable) {
        m_blocks[row] = std::move(block);
        return *m_blocks[row];
    }
    QVector<quint16> glyphs;
    QVector<int> cells;
    for (int cell = 0; cell < int(block->size()); ++cell) {
        const QChar character(uchar(cell), row);
        if (!isSetByItself(character))
            continue;
        // The font's own table lacks glyphs for some spaces that look the same.
        const bool isBlank = character.category() == QChar::Separator_Space && character.unicode() == 0xa0;
        const QVector<quint32> found = m_raw.glyphIndexesForString(isBlank ? QStringLiteral(" ") : QString(character));
        if (found.size() != 1 || found.constFirst() == 0 || found.constFirst() > 0xffff)
            continue;
        glyphs += quint16(found.constFirst());
        cells += cell;
    }
    const QVector<double> widths = pdf::glyphWidths(m_raw, glyphs);
    for (int i = 0; i < cells.size(); ++i)
        (*block)[size_t(cells.at(i))] = {glyphs.at(i), 0, float(widths.at(i) * m_thousandth)};
    m_blocks[row] = std::move(block);
    return *m_blocks[row];
}

bool PageFont::isThickened(const QRawFont& raw) const
{
    return raw == m_raw ? m_isThickened : m_font.bold() && !isBoldFace(raw);
}

/// A font of pictures is not: pages show its glyphs as pictures.
bool PageFont::isRefused(const QRawFont& raw) const
{
    for (const auto& [font, isRefused] : m_refused) {
        if (font == raw)
            return isRefused;
    }
    const pdf::Embedding embedding = pdf::embeddingOf(raw);
    const bool isRefused = embedding != pdf::Embedding::Allowed && embedding != pdf::Embedding::NoOutlines;
    m_refused.emplace_back(raw, isRefused);
    return isRefused;
}

bool PageFont::replaceRefused(const QTextLayout& layout) const
{
    const QList<QGlyphRun> runs = layout.glyphRuns();
    const auto isOfRefused = [this](const QGlyphRun& run) { return isRefused(run.rawFont()); };
    if (std::none_of(runs.cbegin(), runs.cend(), isOfRefused))
        return false;
    const QVector<uint> characters = layout.text().toUcs4();
    QStringList families = m_font.families().isEmpty() ? QStringList(m_font.family()) : m_font.families();
    const int known = families.size();
    int at = 0;
    for (const uint character : characters) {
        const int length = QChar::requiresSurrogates(character) ? 2 : 1;
        const QList<QGlyphRun> own = layout.glyphRuns(at, length);
        at += length;
        const QString family
                = std::any_of(own.cbegin(), own.cend(), isOfRefused) ? embeddableFamily(character) : QString();
        if (!family.isEmpty() && !families.contains(family))
            families += family;
    }
    if (families.size() > known)
        m_font.setFamilies(families);
    return families.size() > known;
}

/// 0 when all places are taken.
int PageFont::placeInPairs(const Glyph& glyph) const
{
    if (glyph.inPairs == 0 && m_inPairs < mostInPairs - 1)
        glyph.inPairs = quint16(++m_inPairs);
    return glyph.inPairs;
}

int PageFont::measurePair(QChar left, QChar right) const
{
    const int row = placeInPairs(glyph(left));
    const int column = placeInPairs(glyph(right));
    // Words of scripts with more letters than that have no pairs.
    if (row == 0 || column == 0)
        return 0;
    qint16& known = (*m_pairs)[size_t(row)][size_t(column)];
    if (known == unknownPair)
        known = qint16(shapedKerning(left, right));
    return known;
}

/// What the font says about the pair. A ligature is not a pair: texts are set glyph by glyph.
int PageFont::shapedKerning(QChar left, QChar right) const
{
    if (left.isSpace() || right.isSpace())
        return 0;
    QFont font = m_font;
    font.setPixelSize(thousandths);
    QTextLayout layout(QString(left) + right, font);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setNumColumns(2);
    layout.endLayout();
    const QList<QGlyphRun> runs = line.glyphRuns();
    if (runs.size() != 1
            || runs.constFirst().glyphIndexes() != QVector<quint32> {glyph(left).index, glyph(right).index})
        return 0;
    const QVector<QPointF> positions = runs.constFirst().positions();
    const qreal apart = positions.at(1).x() - positions.at(0).x() - glyph(left).advance / m_thousandth;
    constexpr qreal most = 999;
    return qRound(qBound(-most, apart, most));
}

} // namespace uiutils
