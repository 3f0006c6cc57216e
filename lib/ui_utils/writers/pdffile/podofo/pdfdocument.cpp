#include "writers/pdffile/podofo/pdfdocument_p.h"

#include "writers/pdffile/pdfciphers_p.h"
#include "writers/pdffile/pdfprobeprotocol_p.h"
#include "writers/pdffile/pdftexts_p.h"

#include <QVarLengthArray>
#include <QtEndian>

#include <algorithm>
#include <cstring>
#include <ostream>
#include <streambuf>
#include <utility>
#include <vector>

namespace uiutils::podofo {

using pdf::PdfFileTexts;

namespace {

/// Where PDFDocEncoding is not Latin-1: 0x18 to 0x1f, and 0x7f to 0xa0.
constexpr char16_t accents[] = u"\u02D8\u02C7\u02C6\u02D9\u02DD\u02DB\u02DA\u02DC";
constexpr char16_t marks[]
        = u"\uFFFD\u2022\u2020\u2021\u2026\u2014\u2013\u0192\u2044\u2039\u203A\u2212\u2030\u201E\u201C"
          u"\u201D\u2018\u2019\u201A\u2122\uFB01\uFB02\u0141\u0152\u0160\u0178\u017D\u0131\u0142\u0153"
          u"\u0161\u017E\uFFFD\u20AC";

QChar fromPdfDocEncoding(uchar byte)
{
    if (byte >= 0x18 && byte <= 0x1f)
        return accents[byte - 0x18];
    if (byte >= 0x7f && byte <= 0xa0)
        return marks[byte - 0x7f];
    return byte == 0xad ? QChar(QChar::ReplacementCharacter) : QChar(ushort(byte));
}

QString fromPdfDocEncoding(const QByteArray& bytes)
{
    QString result(bytes.size(), Qt::Uninitialized);
    for (int i = 0; i < bytes.size(); ++i)
        result[i] = fromPdfDocEncoding(static_cast<uchar>(bytes.at(i)));
    return result;
}

/// Discards half a character at the end.
QString fromUtf16(const QByteArray& bytes, int begin, bool bigEndian)
{
    QString result((bytes.size() - begin) / 2, Qt::Uninitialized);
    for (int i = 0; i < result.size(); ++i) {
        const char* unit = bytes.constData() + begin + qptrdiff(2) * i;
        result[i] = bigEndian ? qFromBigEndian<ushort>(unit) : qFromLittleEndian<ushort>(unit);
    }
    return result;
}

/// If a string has the mark of the other byte order and is not written in hexadecimal, PoDoFo swaps its bytes and
/// forgets that they are UTF-16. No other text has zeros.
bool isTurned(const QByteArray& bytes)
{
    return bytes.size() % 2 == 0 && bytes.contains('\0');
}

/// Whether every reader shows the bytes of the text as the text, because it is the same in PDFDocEncoding and ASCII.
bool isPlain(const QString& text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) {
        return (c >= QLatin1Char(' ') && c <= QLatin1Char('~')) || c == QLatin1Char('\n') || c == QLatin1Char('\t');
    });
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
    if (bytes.startsWith("\xff\xfe"))
        return fromUtf16(bytes, 2, false);
    if (isTurned(bytes))
        return fromUtf16(bytes, 0, true);
    if (bytes.startsWith("\xef\xbb\xbf"))
        return QString::fromUtf8(bytes.constData() + 3, bytes.size() - 3);
    return fromPdfDocEncoding(bytes);
}

QString textOf(const PoDoFo::PdfObject* object)
{
    if (!object || !(object->IsString() || object->IsHexString()))
        return QString();
    return textOf(object->GetString());
}

PoDoFo::PdfString stringOf(const QString& text)
{
    if (isPlain(text)) {
        const QByteArray bytes = text.toLatin1();
        return PoDoFo::PdfString(bytes.constData(), PoDoFo::pdf_long(bytes.size()));
    }
    const QByteArray utf8 = text.toUtf8();
    const QString whole = QString::fromUtf8(utf8.constData(), utf8.size());
    QVarLengthArray<PoDoFo::pdf_utf16be, 256> units(whole.size());
    for (int i = 0; i < whole.size(); ++i)
        units[i] = qToBigEndian(whole.at(i).unicode());
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
