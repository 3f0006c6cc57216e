#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

/// The parser of PDF files is a library of its own, which is loaded when it is first needed: it brings so many other
/// libraries along that linking them took a third of the start of every page.
namespace uiutils::pdf {

/// A PDF file in memory, of which the document information can be changed.
class DescribedFile
{
public:
    virtual ~DescribedFile() = default;

    /// An entry of the document information; empty if there is none, or if it is not a text.
    virtual QString entry(const QString& key) const = 0;
    /// False, with `error` set, if the entry cannot be set.
    virtual bool setEntry(const QString& key, const QString& value, QString* error) = 0;
    /// The file with what was changed; empty, with `error` set, if it cannot be written, as no encrypted one can.
    virtual QByteArray save(QString* error) = 0;
};

/// What the library with the parser offers. It lives as long as the process.
class Engine
{
public:
    virtual std::unique_ptr<DescribedFile> load(const QByteArray& contents, QString* error) const = 0;
    virtual QString errorText(int code) const = 0;

protected:
    ~Engine() = default;
};

/// The document of a file with these contents; null, with `error` set, if it cannot be read or asks for a password. The
/// document does not need the bytes any more. Contents from outside must have passed a PdfProbe.
std::unique_ptr<DescribedFile> load(const QByteArray& contents, QString* error);

/// The complete file with what was changed; empty, with `error` set, if there is none.
QByteArray saved(DescribedFile& document, QString* error);

/// The text for an error code of the parser; never empty.
QString errorText(int code);

} // namespace uiutils::pdf

extern "C" {
/// What the library with the parser exports.
using UiUtilsPdfEngine = const uiutils::pdf::Engine* (*)();
}
