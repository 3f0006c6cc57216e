#pragma once

#include "writers/pdffile/pdfengine_p.h"

namespace uiutils::pdf {

/// A file with these contents, if it is of the form that the library writes; otherwise null, and the parser has to read
/// it. Neither time nor memory depend on what the file contains, apart from its table of objects. A change is saved by
/// adding to the end of the file, in the place of what an earlier change has added.
std::unique_ptr<DescribedFile> openForUpdate(const QByteArray& contents);

} // namespace uiutils::pdf
