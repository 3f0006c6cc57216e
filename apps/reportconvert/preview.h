#pragma once

#include "formats.h"

namespace uiutils::convert {

/// The PDF pages on the screen, or, with Packing::Files, as pictures. No format that --format knows.
const Format& previewFormat();

} // namespace uiutils::convert
