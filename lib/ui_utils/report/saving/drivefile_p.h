#pragma once

#include "base/durablefile_p.h"

#include <QByteArray>
#include <QString>

#include <optional>

/// Complete files on drives that may be removed at any time. Paths are the instrument's, reasons are for the user.
namespace uiutils {

/// The contents of the file. Nothing, with the reason in `error`, if it cannot be read completely or does not fit into
/// memory.
std::optional<QByteArray> readWholeFile(const QString& path, QString* error);

/// Writes the file as writeFileDurably() does or, unless `mayReplace`, as writeNewFileDurably(). `Failed`, with the
/// reason in `error`, also if its drive is not there, or is removed meanwhile: what was written into the folder that
/// remains of a USB drive does not count as saved.
NewFile writeToDrive(const QString& path, const QByteArray& contents, bool mayReplace, QString* error);

} // namespace uiutils
