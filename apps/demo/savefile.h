#pragma once

#include <QByteArray>
#include <QString>

namespace uiutils::demo {

/// Writes the file at `path` on this machine's disk, completely or not at all. False, with the reason in `error`, if
/// that fails.
bool saveFile(const QString& path, const QByteArray& contents, QString* error);

} // namespace uiutils::demo
