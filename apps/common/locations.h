#pragma once

#include <QString>

namespace uiutils::apps {

/// The viewer of PDF files, installed or built beside the program; empty when it is missing.
QString pdfViewerProgram();

} // namespace uiutils::apps
