#pragma once

#include "writers/emitter/fontprogram_p.h"

namespace uiutils::pdf {

/// What the headers of a font say; everything may be wrong.
struct FontFacts
{
    FontProgram::Kind outlines = FontProgram::None;
    int glyphCount = 0;
    /// 1,000 if the font does not say it.
    int unitsPerEm = 0;
    /// Whether the maker forbids to embed outlines, or to leave glyphs out.
    bool isForbidden = false;
    bool isIndivisible = false;
};

FontFacts fontFacts(const FontTables& tables);

} // namespace uiutils::pdf
