#pragma once

#include "problem.h"

#include <QByteArray>
#include <QString>

namespace uiutils::viewer {

/// What a file may hold at most, on disk and once it is inflated.
constexpr int mostBytes = 64 * 1024 * 1024;

/// The bytes of a PDF file; those of a compressed one (gzip, whatever its name) inflated in memory. Empty with the
/// reason in `problem` when it has none to show. Whether they are a PDF file beyond their first bytes is for others to
/// say.
QByteArray readDocument(const QString& path, Problem* problem);

} // namespace uiutils::viewer
