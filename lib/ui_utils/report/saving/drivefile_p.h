#pragma once

#include "base/durablefile_p.h"

#include <QByteArray>
#include <QString>

#include <optional>

/// Whole files of drives that may be pulled at any time. Paths are the instrument's, reasons are in words.
namespace uiutils {

/// What the file holds. Nothing, with the reason in `error`, when not all of it can be read or memory cannot hold it.
std::optional<QByteArray> readWholeFile(const QString& path, QString* error);

/// Writes the file as writeFileDurably() does or, unless `mayReplace`, as writeNewFileDurably(). `Failed`, with the
/// reason in `error`, also when its drive is not there, or no more: nothing is written then into the folder that a
/// stick leaves behind, or nobody is told that it was.
NewFile writeToDrive(const QString& path, const QByteArray& contents, bool mayReplace, QString* error);

} // namespace uiutils
