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

/// Where the table of objects is, as the last "startxref" of these last bytes of a file says; -1 if they have none, or
/// anything after its end.
qint64 tablePosition(const QByteArray& tail);

/// How many bytes of the end of a file tablePosition() needs.
constexpr int tailSize = 1024;

} // namespace uiutils::pdf
