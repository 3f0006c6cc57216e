#include "writers/emitter/fontprogram_p.h"

#include "base/ownlibrary_p.h"
#include "writers/emitter/fontfacts_p.h"
#include "writers/emitter/fonttable_p.h"

#include <QCoreApplication>
#include <QHash>
#include <QMutex>

#include <algorithm>
#include <numeric>

namespace uiutils::pdf {

namespace {

struct FontTexts
{
    Q_DECLARE_TR_FUNCTIONS(FontTexts)
};

struct Loaded
{
    Loaded()
        : subset(reinterpret_cast<UiUtilsFontSubset>(
                ownLibraryFunction("uiutils", UIUTILS_FONT_LIBRARY, "uiutilsFontSubset", &error)))
    {
    }

    QString error;
    UiUtilsFontSubset subset;
};

const Loaded& loaded()
{
    static const Loaded once;
    return once;
}

bool isHeaderBroken(const FontTables& tables)
{
    constexpr quint32 magic = 0x5f0f3cf5;
    const FontTable head(tables("head"));
    const quint16 unitsPerEm = head.u16(18);
    return head.size() < 54 || head.u32(12) != magic || unitsPerEm < 16 || unitsPerEm > 16384;
}

bool areWidthsBroken(const FontTables& tables, int glyphCount)
{
    const int count = FontTable(tables("hhea")).u16(34);
    const FontTable hmtx(tables("hmtx"));
    return count == 0 || hmtx.size() < count * 4 + qMax(0, glyphCount - count) * 2;
}

/// Judged by where the outlines begin and end, without fetching them.
Embedding glyfEmbedding(const FontTables& tables, int glyphCount)
{
    const bool isLong = FontTable(tables("head")).i16(50) != 0;
    const FontTable loca(tables("loca"));
    if (loca.size() == 0)
        return Embedding::NoOutlines;
    if (loca.size() < (glyphCount + 1) * (isLong ? 4 : 2))
        return Embedding::Broken;
    const quint32 end = isLong ? loca.u32(glyphCount * 4) : loca.u16(glyphCount * 2);
    return end > 0 ? Embedding::Allowed : Embedding::NoOutlines;
}

Embedding cffEmbedding(const FontTables& tables)
{
    const FontTable cff(tables("CFF "));
    if (cff.size() == 0)
        return Embedding::NoOutlines;
    return cff.u8(0) == 1 ? Embedding::Allowed : Embedding::Broken;
}

QVector<quint16> presentGlyphs(QVector<quint16> glyphs, const FontFacts& facts)
{
    if (facts.isIndivisible) {
        glyphs.resize(facts.glyphCount);
        std::iota(glyphs.begin(), glyphs.end(), quint16(0));
        return glyphs;
    }
    glyphs.append(0);
    std::sort(glyphs.begin(), glyphs.end());
    glyphs.erase(std::unique(glyphs.begin(), glyphs.end()), glyphs.end());
    glyphs.erase(std::lower_bound(glyphs.begin(), glyphs.end(), facts.glyphCount), glyphs.end());
    return glyphs;
}

/// Different glyphs of one font shall have different tags: the tag is a hash (FNV-1a) of their numbers.
QByteArray subsetTag(const QVector<quint16>& glyphs)
{
    quint32 hash = 2166136261;
    for (const quint16 glyph : glyphs) {
        hash = (hash ^ (glyph & 0xff)) * 16777619;
        hash = (hash ^ (glyph >> 8)) * 16777619;
    }
    QByteArray tag;
    for (int i = 0; i < 6; ++i, hash /= 26)
        tag.append(char('A' + hash % 26));
    return tag + '+';
}

} // namespace

FontTables tablesOf(const QRawFont& font)
{
    return [font](const char* tag) { return font.fontTable(tag); };
}

QByteArray faceOf(const QRawFont& font)
{
    return font.familyName().toUtf8() + '\0' + font.styleName().toUtf8() + '\0' + font.fontTable("head")
            + font.fontTable("OS/2") + font.fontTable("maxp");
}

Embedding embeddingOf(const FontTables& tables)
{
    const FontFacts facts = fontFacts(tables);
    if (facts.outlines == FontProgram::None && tables("head").isEmpty())
        return Embedding::NoTables;
    if (!tables("fvar").isEmpty() || !tables("CFF2").isEmpty())
        return Embedding::Variable;
    if (facts.isForbidden)
        return Embedding::Forbidden;
    if (facts.glyphCount == 0 || isHeaderBroken(tables) || areWidthsBroken(tables, facts.glyphCount))
        return Embedding::Broken;
    switch (facts.outlines) {
    case FontProgram::TrueType:
        return glyfEmbedding(tables, facts.glyphCount);
    case FontProgram::Cff:
        return cffEmbedding(tables);
    case FontProgram::None:
        break;
    }
    return Embedding::Broken;
}

Embedding embeddingOf(const QRawFont& font)
{
    static QMutex mutex;
    static QHash<QByteArray, Embedding> known;
    const QByteArray face = faceOf(font);
    const QMutexLocker locker(&mutex);
    const auto it = known.constFind(face);
    return it != known.constEnd() ? *it : *known.insert(face, embeddingOf(tablesOf(font)));
}

FontProgram fontProgram(const FontTables& tables, const QVector<quint16>& glyphs)
{
    FontProgram program;
    if (!loaded().subset) {
        program.error = loaded().error;
        return program;
    }
    const FontFacts facts = fontFacts(tables);
    const QVector<quint16> present = presentGlyphs(glyphs, facts);
    program.kind = facts.outlines;
    if (!present.isEmpty() && program.kind != FontProgram::None)
        loaded().subset(tables, present, &program);
    if (program.data.isEmpty()) {
        program.kind = FontProgram::None;
        program.error = FontTexts::tr("The font is broken");
    } else if (!facts.isIndivisible) {
        program.tag = subsetTag(present);
    }
    return program;
}

FontProgram fontProgram(const QRawFont& font, const QVector<quint16>& glyphs)
{
    return fontProgram(tablesOf(font), glyphs);
}

} // namespace uiutils::pdf
