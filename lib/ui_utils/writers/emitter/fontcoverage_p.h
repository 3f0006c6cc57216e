#pragma once

#include "writers/emitter/fontprogram_p.h"

#include <utility>
#include <vector>

namespace uiutils::pdf {

/// Ranges of characters, first and last, sorted by the last.
using FontCoverage = std::vector<std::pair<quint32, quint32>>;

/// The characters for which a font may have glyphs: no others have one. Takes some kilobytes, 100 for ideographs.
FontCoverage fontCoverage(const FontTables& tables);

bool mayShow(const FontCoverage& coverage, quint32 character);

} // namespace uiutils::pdf
