#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QDateTime>
#include <QString>

#include <podofo/podofo.h>

#include <memory>

class QIODevice;

/// What the library does with PDF files. PoDoFo reports errors by throwing; no exception leaves these functions.
namespace uiutils::pdf {

/// The texts of this room, under one context for translators.
struct PdfFileTexts
{
    Q_DECLARE_TR_FUNCTIONS(PDFFile)
};

/// PoDoFo's text for an error code; never empty.
QString errorText(int code);
/// The text for the exception that is being handled, whatever it is. Call it only in a handler.
QString currentErrorText();

/// Calls `work`; returns false and sets `error` if it throws.
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

/// A text string of a file, in any of the encodings of PDF.
QString textOf(const PoDoFo::PdfString& string);
/// The same; empty if the object is null or not a string.
QString textOf(const PoDoFo::PdfObject* object);
/// A string of all of `text`, with lone surrogates replaced.
PoDoFo::PdfString stringOf(const QString& text);

/// A PDF date, "D:YYYYMMDDHHmmSS+HH'mm'", of which everything after the year may be missing. A date without a zone is
/// in local time. Invalid if the text is not a date.
QDateTime dateTime(const QString& text);

/// The document of a file with these contents; null, with `error` set, if PoDoFo cannot read it or it asks for a
/// password. The document needs neither the file nor the bytes any more. Contents from outside must have passed a
/// PdfProbe.
std::unique_ptr<PoDoFo::PdfMemDocument> load(const QByteArray& contents, QString* error);
/// The document as a file; empty, with `error` set, if it cannot be written completely, as no encrypted one can.
QByteArray save(PoDoFo::PdfMemDocument& document, QString* error);

/// Whether a random-access device that is open for reading holds a complete PDF file: the header, the end mark and,
/// where the file says it is, the table of its objects. A file that was cut short, by a full disk or because the USB
/// drive was removed, does not.
bool isWholePdf(QIODevice& device, QString* error);
/// The same for the file at `path` on the disk.
bool isWholePdf(const QString& path, QString* error);

} // namespace uiutils::pdf
