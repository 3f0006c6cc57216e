#pragma once

#include <QString>

namespace uiutils {

/// Replaces the file at the instrument path by its compressed form with ".gz" behind its name, or back again. Blocks
/// until gzip is done. What lies at the new name goes; nothing is synced: writeReportFile() is for what must survive a
/// power cut.
///
/// Returns false when gzip cannot be started or does not end with 0; a line in the log says so.
bool compressFile(const QString& path);
bool uncompressFile(const QString& path);

/// The same for a file that lies at `place` on disk and that the log knows as `path`.
bool compressFileAt(const QString& place, const QString& path);

} // namespace uiutils
