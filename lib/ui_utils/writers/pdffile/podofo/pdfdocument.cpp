#include "writers/pdffile/podofo/pdfdocument_p.h"

#include "writers/pdffile/pdfciphers_p.h"
#include "writers/pdffile/pdfencoding_p.h"
#include "writers/pdffile/pdfprobeprotocol_p.h"
#include "writers/pdffile/pdftexts_p.h"

#include <QVarLengthArray>

#include <cstring>
#include <ostream>
#include <streambuf>
#include <utility>
#include <vector>

namespace uiutils::podofo {

using pdf::fromUtf16;
using pdf::PdfFileTexts;

namespace {

/// If a string has the mark of the other byte order and is not written in hexadecimal, PoDoFo swaps its bytes and
/// forgets that they are UTF-16. No other text has zeros.
bool isTurned(const QByteArray& bytes)
{
    return bytes.size() % 2 == 0 && bytes.contains('\0');
}

/// Appends to an array what is written to it.
class ArrayBuffer : public std::streambuf
{
public:
    explicit ArrayBuffer(QByteArray& array)
        : m_array(array)
    {
    }

protected:
    std::streamsize xsputn(const char* data, std::streamsize size) override
    {
        m_array.append(data, int(size));
        return size;
    }
    int_type overflow(int_type c) override
    {
        m_array.append(traits_type::to_char_type(c));
        return traits_type::not_eof(c);
    }

private:
    QByteArray& m_array;
};

void prepare()
{
    static const bool prepared = [] {
        PoDoFo::PdfError::EnableLogging(false);
        PoDoFo::PdfError::EnableDebug(false);
        PoDoFo::PdfParser::SetMaxObjectCount(pdfprobe::mostObjects);
        return true;
    }();
    Q_UNUSED(prepared)
}

/// For a file without document information PoDoFo invents some, dated now and with its own name as the producer. The
/// only sign of that is that no parser made the object; objects that are packed in a stream have no parser either.
void forgetInvention(PoDoFo::PdfMemDocument& document)
{
    PoDoFo::PdfObject* info = document.GetInfo()->GetObject();
    if (dynamic_cast<PoDoFo::PdfParserObject*>(info))
        return;
    const QString producer = textOf(info->GetIndirectKey("Producer"));
    if (info->GetDictionary().GetKeys().size() == 2 && producer.startsWith(QLatin1String("PoDoFo")))
        info->GetDictionary().Clear();
}

/// The padding after a text that was encrypted in blocks of 16 bytes: as many bytes of that value as fill the last
/// block.
int paddingOf(const QByteArray& bytes, bool isUnicode)
{
    // The mark in front of Unicode was encrypted too, and is no longer there.
    const int encrypted = bytes.size() + (isUnicode ? 2 : 0);
    if (bytes.isEmpty() || encrypted % 16 != 0)
        return 0;
    const int padding = uchar(bytes.back());
    const bool isPadded = padding >= 1 && padding <= 16 && bytes.endsWith(QByteArray(padding, char(padding)));
    return isPadded ? padding : 0;
}

PoDoFo::PdfString withoutPadding(const PoDoFo::PdfString& string)
{
    QByteArray bytes(string.GetString(), int(string.GetLength()));
    bytes.chop(paddingOf(bytes, string.IsUnicode()));
    if (!string.IsUnicode())
        return PoDoFo::PdfString(bytes.constData(), PoDoFo::pdf_long(bytes.size()));
    QVarLengthArray<PoDoFo::pdf_utf16be, 256> units(bytes.size() / 2);
    std::memcpy(units.data(), bytes.constData(), size_t(units.size()) * 2);
    return PoDoFo::PdfString(units.constData(), PoDoFo::pdf_long(units.size()));
}

/// PoDoFo leaves the padding only in texts of files that are encrypted with 256 bits: with fewer, a text that ends so
/// is meant so.
bool leavesPadding(const PoDoFo::PdfEncrypt& encryption)
{
    const int algorithm = encryption.GetEncryptAlgorithm();
    return algorithm == PoDoFo::PdfEncrypt::ePdfEncryptAlgorithm_AESV3
            || algorithm == PoDoFo::PdfEncrypt::ePdfEncryptAlgorithm_AESV3R6;
}

/// Texts in objects that are packed in a stream have no padding, and these objects have no parser.
void removePadding(PoDoFo::PdfMemDocument& document)
{
    PoDoFo::PdfObject* info = document.GetInfo()->GetObject();
    std::vector<std::pair<PoDoFo::PdfName, PoDoFo::PdfString>> texts;
    for (const auto& entry : info->GetDictionary().GetKeys()) {
        const bool isElsewhere = entry.second->IsReference();
        const PoDoFo::PdfObject* value = isElsewhere ? info->GetIndirectKey(entry.first) : entry.second;
        const bool isText = value && (value->IsString() || value->IsHexString());
        if (isText && dynamic_cast<const PoDoFo::PdfParserObject*>(isElsewhere ? value : info))
            texts.emplace_back(entry.first, withoutPadding(value->GetString()));
    }
    for (const auto& [key, text] : texts)
        info->GetDictionary().AddKey(key, text);
}

} // namespace

QString errorText(int code)
{
    const auto known = PoDoFo::EPdfError(code);
    if (const char* message = PoDoFo::PdfError::ErrorMessage(known))
        return QString::fromUtf8(message);
    if (const char* name = PoDoFo::PdfError::ErrorName(known))
        return QString::fromUtf8(name);
    return PdfFileTexts::tr("Unknown error");
}

QString currentErrorText()
{
    try {
        throw;
    } catch (const PoDoFo::PdfError& error) {
        return errorText(error.GetError());
    } catch (const std::exception& error) {
        return QString::fromUtf8(error.what());
    } catch (...) {
        return PdfFileTexts::tr("Unknown error");
    }
}

QString textOf(const PoDoFo::PdfString& string)
{
    if (!string.IsValid())
        return QString();
    const QByteArray bytes(string.GetString(), int(string.GetLength()));
    if (string.IsUnicode())
        return fromUtf16(bytes, 0, true);
    // With its mark, UTF-16 of the other order is not turned.
    return isTurned(bytes) && !bytes.startsWith("\xff\xfe") ? fromUtf16(bytes, 0, true) : pdf::textOf(bytes);
}

QString textOf(const PoDoFo::PdfObject* object)
{
    if (!object || !(object->IsString() || object->IsHexString()))
        return QString();
    return textOf(object->GetString());
}

PoDoFo::PdfString stringOf(const QString& text)
{
    if (pdf::isPlain(text)) {
        const QByteArray bytes = text.toLatin1();
        return PoDoFo::PdfString(bytes.constData(), PoDoFo::pdf_long(bytes.size()));
    }
    const QVector<ushort> units = pdf::utf16(text);
    return PoDoFo::PdfString(units.constData(), PoDoFo::pdf_long(units.size()));
}

std::unique_ptr<PoDoFo::PdfMemDocument> load(const QByteArray& contents, QString* error)
{
    prepare();
    std::unique_ptr<PoDoFo::PdfMemDocument> document;
    if (contents.contains("/Encrypt"))
        pdf::allowOldCiphers();
    const bool loaded = guarded(error, [&] {
        document = std::make_unique<PoDoFo::PdfMemDocument>();
        document->LoadFromBuffer(contents.constData(), contents.size());
        forgetInvention(*document);
    });
    if (!loaded)
        return nullptr;
    const PoDoFo::PdfEncrypt* encryption = document->GetEncrypt();
    if (encryption && leavesPadding(*encryption) && !guarded(error, [&] { removePadding(*document); }))
        return nullptr;
    return document;
}

QByteArray save(PoDoFo::PdfMemDocument& document, QString* error)
{
    QByteArray contents;
    // The padding that PoDoFo leaves in the texts would be written with them.
    if (document.GetEncrypted()) {
        *error = PdfFileTexts::tr("The file is encrypted, and writing it would damage it");
        return contents;
    }
    const bool written = guarded(error, [&] {
        ArrayBuffer buffer(contents);
        std::ostream stream(&buffer);
        // Otherwise the stream does not report that memory ran out.
        stream.exceptions(std::ios::badbit);
        PoDoFo::PdfOutputDevice device(&stream);
        document.Write(&device);
    });
    return written ? contents : QByteArray();
}

} // namespace uiutils::podofo
