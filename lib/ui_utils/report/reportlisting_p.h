#pragma once

#include <QString>
#include <QVariantList>

namespace uiutils {

/// The reports that lie in the folder, an instrument path, but not those of its sub-folders: newest first, those of
/// one time by name. One map each:
///
/// | key | value |
/// |---|---|
/// | `name` | file name without the suffixes of format and compression |
/// | `path` | instrument path |
/// | `format` | "PDF", "XML", "HTML", "TEXT" or "JSON" |
/// | `size` | bytes on the disk, a qlonglong |
/// | `time` | when it was written last, a QDateTime in local time |
/// | `compressed` | whether it is a gzip file |
///
/// A report is a file, or a link to one, whose name ends in a format's suffix, with ".gz" behind it or not, and does
/// not begin with "._". Empty for a folder that cannot be read.
QVariantList reportFiles(const QString& folder);

} // namespace uiutils
