#pragma once

#include "writers/pdffile/pdfannotation_p.h"

namespace PoDoFo {
class PdfMemDocument;
}

namespace uiutils::podofo {

/// Replaces the texts and, unless the new one is empty, the outline of the document. Throws what PoDoFo throws.
void annotate(PoDoFo::PdfMemDocument& document, const pdf::Annotation& annotation);

} // namespace uiutils::podofo
