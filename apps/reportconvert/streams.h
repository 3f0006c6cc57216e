#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QString>

namespace uiutils::convert {

/// Copies standard input, up to the size that a document may have. Returns false, with the reason in `error`,
/// when that fails, and with an empty one when a signal came first.
bool copyStandardInput(QIODevice& target, QString* error);

/// Writes to standard output; fails as copyStandardInput() does.
bool writeStandardOutput(const QByteArray& bytes, QString* error);

} // namespace uiutils::convert
