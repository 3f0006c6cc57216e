#pragma once

#include <QByteArray>
#include <QString>

#include <podofo/podofo.h>

#include <memory>

/// PDF files as PoDoFo holds them. It reports errors by throwing; no exception leaves these functions.
namespace uiutils::podofo {

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

/// The document of a file with these contents; null, with `error` set, if PoDoFo cannot read it or it asks for a
/// password. The document needs neither the file nor the bytes any more. Contents from outside must have passed a
/// PdfProbe.
std::unique_ptr<PoDoFo::PdfMemDocument> load(const QByteArray& contents, QString* error);
/// The document as a file; empty, with `error` set, if it cannot be written completely, as no encrypted one can.
QByteArray save(PoDoFo::PdfMemDocument& document, QString* error);

} // namespace uiutils::podofo
