#pragma once

#include <QString>

namespace uiutils {

/// Replaces the file at the instrument path by its compressed form, which has ".gz" after its name, or the other way
/// round. Blocks until gzip has ended. A file at the new name is replaced. Nothing is written durably: use
/// writeReportFile() for what must survive a power cut.
///
/// Returns false, with a line in the log, if gzip cannot be started or does not end with 0.
bool compressFile(const QString& path);
bool uncompressFile(const QString& path);

/// The same for the file at `place` on the disk, which the log calls `path`.
bool compressFileAt(const QString& place, const QString& path);

} // namespace uiutils
