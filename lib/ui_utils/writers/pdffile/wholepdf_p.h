#pragma once

#include <QByteArray>
#include <QString>

class QIODevice;

namespace uiutils::pdf {

/// Whether a random-access device that is open for reading holds a complete PDF file: the header, the end mark and,
/// where the file says it is, the table of its objects. A file that was cut short, by a full disk or because the USB
/// drive was removed, does not.
bool isWholePdf(QIODevice& device, QString* error);
/// The same for the contents of a file.
bool isWholePdf(const QByteArray& contents, QString* error);

} // namespace uiutils::pdf
