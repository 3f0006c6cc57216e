#include "writers/emitter/pdfsyntax_p.h"

#include <QtEndian>

#include <cmath>

namespace uiutils::pdf {

namespace {

bool isPrintableAscii(const QString& text)
{
    return std::all_of(text.cbegin(), text.cend(), [](QChar c) { return c.unicode() >= 0x20 && c.unicode() < 0x7f; });
}

QByteArray utf16(const QString& text)
{
    QByteArray bytes("\xfe\xff");
    for (const QChar c : text) {
        bytes += char(c.row());
        bytes += char(c.cell());
    }
    return bytes;
}

} // namespace

void appendHundredths(QByteArray& bytes, qint64 hundredths)
{
    if (hundredths < 0) {
        bytes += '-';
        hundredths = -hundredths;
    }
    char digits[24];
    int at = int(sizeof digits);
    const int fraction = int(hundredths % 100);
    if (fraction != 0) {
        if (fraction % 10 != 0)
            digits[--at] = char('0' + fraction % 10);
        digits[--at] = char('0' + fraction / 10);
        digits[--at] = '.';
    }
    qint64 whole = hundredths / 100;
    do {
        digits[--at] = char('0' + whole % 10);
        whole /= 10;
    } while (whole > 0);
    bytes.append(digits + at, int(sizeof digits) - at);
}

void appendNumber(QByteArray& bytes, qreal number)
{
    appendHundredths(bytes, std::isfinite(number) ? std::llround(qBound(-1e9, number, 1e9) * 100) : 0);
}

void appendNumbers(QByteArray& bytes, std::initializer_list<qreal> numbers)
{
    for (const qreal number : numbers) {
        appendNumber(bytes, number);
        bytes += ' ';
    }
}

QByteArray byteString(const QByteArray& bytes)
{
    QByteArray string("(");
    for (const char c : bytes) {
        if (c == '(' || c == ')' || c == '\\')
            string += '\\';
        // A reader takes a bare carriage return for a line feed.
        if (c == '\r')
            string += "\\r";
        else
            string += c;
    }
    return string + ')';
}

QByteArray hexString(const QByteArray& bytes)
{
    return '<' + bytes.toHex() + '>';
}

QByteArray textString(const QString& text)
{
    return isPrintableAscii(text) ? byteString(text.toLatin1()) : hexString(utf16(text));
}

QByteArray dateString(const QDateTime& time)
{
    const int offset = time.offsetFromUtc() / 60;
    QByteArray text = "D:" + time.toString(QStringLiteral("yyyyMMddHHmmss")).toLatin1() + (offset < 0 ? '-' : '+');
    text += QByteArray::number(qAbs(offset) / 60).rightJustified(2, '0') + '\'';
    text += QByteArray::number(qAbs(offset) % 60).rightJustified(2, '0') + '\'';
    return byteString(text);
}

QByteArray nameOf(const QByteArray& text)
{
    QByteArray name("/");
    for (const char c : text) {
        const bool isPlain = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-'
                || c == '+' || c == '_' || c == '.';
        name += isPlain ? QByteArray(1, c) : '#' + QByteArray(1, c).toHex();
    }
    return name;
}

QByteArray referenceTo(int object)
{
    return QByteArray::number(object) + " 0 R";
}

} // namespace uiutils::pdf
