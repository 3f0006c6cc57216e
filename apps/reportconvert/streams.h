#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QString>

namespace uiutils::convert {

/// Copies standard input, up to the maximum size of a document. Returns false on failure, with the reason in `error`,
/// which is empty after a signal.
bool copyStandardInput(QIODevice& target, QString* error);

/// Writes to standard output; failures as for copyStandardInput().
bool writeStandardOutput(const QByteArray& bytes, QString* error);

} // namespace uiutils::convert
