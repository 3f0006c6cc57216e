#pragma once

#include <QByteArray>

namespace uiutils::fonts {

/// Gives the characters of a CID-keyed font program the numbers of their glyphs as CIDs, so that pages can be written
/// before the program is made, and readers that take a CID for a glyph's number are right too. A program keyed by
/// names stays as it is. False if the program is broken.
bool numberByGlyphs(QByteArray* cff);

} // namespace uiutils::fonts
