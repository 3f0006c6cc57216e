#pragma once

#include <QString>

/// Saved reports that are text, as pages show them. Paths are the instrument's.
namespace uiutils {

/// Whether a report of this name is text: TEXT, XML, HTML or JSON, compressed or not.
bool hasText(const QString& path);

/// Its text, at most the first MiB; empty if it cannot be read.
QString savedText(const QString& path);

} // namespace uiutils
