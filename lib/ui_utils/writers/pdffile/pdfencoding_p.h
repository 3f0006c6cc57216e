#pragma once

#include <QString>
#include <QVector>
#include <QtEndian>

#include <algorithm>

/// Texts as PDF files encode them. Both readers of files need this, and they are in different libraries.
namespace uiutils::pdf {

/// Where PDFDocEncoding is not Latin-1: 0x18 to 0x1f, and 0x7f to 0xa0.
inline constexpr char16_t pdfAccents[] = u"\u02D8\u02C7\u02C6\u02D9\u02DD\u02DB\u02DA\u02DC";
inline constexpr char16_t pdfMarks[]
        = u"\uFFFD\u2022\u2020\u2021\u2026\u2014\u2013\u0192\u2044\u2039\u203A\u2212\u2030\u201E\u201C"
          u"\u201D\u2018\u2019\u201A\u2122\uFB01\uFB02\u0141\u0152\u0160\u0178\u017D\u0131\u0142\u0153"
          u"\u0161\u017E\uFFFD\u20AC";

inline QChar fromPdfDocEncoding(uchar byte)
{
    if (byte >= 0x18 && byte <= 0x1f)
        return pdfAccents[byte - 0x18];
    if (byte >= 0x7f && byte <= 0xa0)
        return pdfMarks[byte - 0x7f];
    return byte == 0xad ? QChar(QChar::ReplacementCharacter) : QChar(ushort(byte));
}

inline QString fromPdfDocEncoding(const QByteArray& bytes)
{
    QString result(bytes.size(), Qt::Uninitialized);
    for (int i = 0; i < bytes.size(); ++i)
        result[i] = fromPdfDocEncoding(static_cast<uchar>(bytes.at(i)));
    return result;
}

/// Discards half a character at the end.
inline QString fromUtf16(const QByteArray& bytes, int begin, bool bigEndian)
{
    QString result((bytes.size() - begin) / 2, Qt::Uninitialized);
    for (int i = 0; i < result.size(); ++i) {
        const char* unit = bytes.constData() + begin + qptrdiff(2) * i;
        result[i] = bigEndian ? qFromBigEndian<ushort>(unit) : qFromLittleEndian<ushort>(unit);
    }
    return result;
}

/// The text of a string of a file, in the encoding that its first bytes name.
inline QString textOf(const QByteArray& bytes)
{
    if (bytes.startsWith("\xfe\xff"))
        return fromUtf16(bytes, 2, true);
    if (bytes.startsWith("\xff\xfe"))
        return fromUtf16(bytes, 2, false);
    if (bytes.startsWith("\xef\xbb\xbf"))
        return QString::fromUtf8(bytes.constData() + 3, bytes.size() - 3);
    return fromPdfDocEncoding(bytes);
}

/// Whether every reader shows the bytes of the text as the text, because it is the same in PDFDocEncoding and ASCII.
inline bool isPlain(const QString& text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) {
        return (c >= QLatin1Char(' ') && c <= QLatin1Char('~')) || c == QLatin1Char('\n') || c == QLatin1Char('\t');
    });
}

/// The text in UTF-16, the higher byte first, with lone surrogates replaced.
inline QVector<ushort> utf16(const QString& text)
{
    const QByteArray utf8 = text.toUtf8();
    const QString whole = QString::fromUtf8(utf8.constData(), utf8.size());
    QVector<ushort> units(whole.size());
    std::transform(whole.begin(), whole.end(), units.begin(), [](QChar c) { return qToBigEndian(c.unicode()); });
    return units;
}

} // namespace uiutils::pdf
