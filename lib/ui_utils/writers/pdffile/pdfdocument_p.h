#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QDateTime>
#include <QString>

#include <podofo/podofo.h>

#include <memory>

class QIODevice;

/// What the library does with PDF files. PoDoFo reports what goes wrong by throwing; no exception leaves
/// these functions.
namespace uiutils::pdf {

/// The texts of this room, under one context for translators.
struct PdfFileTexts
{
    Q_DECLARE_TR_FUNCTIONS(PDFFile)
};

/// PoDoFo's words for an error code; never empty.
QString errorText(int code);
/// Those for the exception that is being handled, whatever it is. Call it in a handler only.
QString currentErrorText();

/// Does `work`; returns false and sets `error` when it threw.
template<typename Work> bool guarded(QString* error, const Work& work)
{
    try {
        work();
        return true;
    } catch (...) {
        *error = currentErrorText();
        return false;
    }
}

/// Text strings of a file, in whichever of the encodings of PDF they are written.
QString textOf(const PoDoFo::PdfString& string);
/// The same; empty for what is no string or is not there.
QString textOf(const PoDoFo::PdfObject* object);
/// The string that holds all of `text`, with lone surrogates replaced.
PoDoFo::PdfString stringOf(const QString& text);

/// A PDF date, "D:YYYYMMDDHHmmSS+HH'mm'", of which everything behind the year may be missing. One that names
/// no zone is in local time. Invalid when the text is not a date.
QDateTime dateTime(const QString& text);

/// The document that a file with these contents holds; null and `error` set when PoDoFo cannot read it or it
/// asks for a password. It needs neither the file nor the bytes any more. Contents from outside have passed a
/// PdfProbe before.
std::unique_ptr<PoDoFo::PdfMemDocument> load(const QByteArray& contents, QString* error);
/// The document as a file; empty and `error` set when it cannot be written, or not whole, as no encrypted one can.
QByteArray save(PoDoFo::PdfMemDocument& document, QString* error);

/// Whether a random-access device that is open for reading holds a PDF file to its end: the header, the end
/// mark and, where the file says it is, the table of its objects. A file that a full disk or a lost stick cut
/// off does not.
bool isWholePdf(QIODevice& device, QString* error);
/// The same for the file at `path` on disk.
bool isWholePdf(const QString& path, QString* error);

} // namespace uiutils::pdf
