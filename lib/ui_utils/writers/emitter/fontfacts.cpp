#include "writers/emitter/fontfacts_p.h"

#include "writers/emitter/fonttable_p.h"

namespace uiutils::pdf {

namespace {

FontProgram::Kind outlinesOf(quint32 maxpVersion)
{
    switch (maxpVersion) {
    case 0x00010000:
        return FontProgram::TrueType;
    case 0x00005000:
        return FontProgram::Cff;
    default:
        return FontProgram::None;
    }
}

/// Of several permissions the widest counts. Without any, embedding is not restricted.
bool isRestricted(quint16 permissions)
{
    constexpr quint16 restricted = 0x0002;
    constexpr quint16 previewAndPrint = 0x0004;
    constexpr quint16 editable = 0x0008;
    return (permissions & (restricted | previewAndPrint | editable)) == restricted;
}

} // namespace

FontFacts fontFacts(const FontTables& tables)
{
    constexpr quint16 noSubsetting = 0x0100;
    constexpr quint16 bitmapsOnly = 0x0200;
    const FontTable maxp(tables("maxp"));
    const quint16 permissions = FontTable(tables("OS/2")).u16(8);
    const quint16 unitsPerEm = FontTable(tables("head")).u16(18);
    FontFacts facts;
    facts.outlines = outlinesOf(maxp.u32(0));
    facts.glyphCount = maxp.u16(4);
    facts.unitsPerEm = unitsPerEm ? unitsPerEm : 1000;
    facts.isForbidden = isRestricted(permissions) || (permissions & bitmapsOnly);
    facts.isIndivisible = permissions & noSubsetting;
    return facts;
}

} // namespace uiutils::pdf
