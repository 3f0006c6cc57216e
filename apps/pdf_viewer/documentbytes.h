#pragma once

#include "problem.h"

#include <QByteArray>
#include <QString>

namespace uiutils::viewer {

/// Maximum size of a file, on disk and uncompressed.
constexpr int mostBytes = 64 * 1024 * 1024;

/// The bytes of a PDF file; those of a compressed one (gzip, whatever its name) are uncompressed in memory. Empty, with
/// the reason in `problem`, when there is nothing to show. Only the first bytes are checked for a PDF file.
QByteArray readDocument(const QString& path, Problem* problem);

} // namespace uiutils::viewer
