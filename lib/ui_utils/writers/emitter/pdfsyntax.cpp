#include "writers/emitter/pdfsyntax_p.h"

#include <cmath>

namespace uiutils::pdf {

namespace {

bool isPrintableAscii(const QString& text)
{
    return std::all_of(text.cbegin(), text.cend(), [](QChar c) { return c.unicode() >= 0x20 && c.unicode() < 0x7f; });
}

/// A number from its last digit to its first, without memory of its own: files have millions of them.
class Digits
{
public:
    void prepend(char c) { m_text[--m_begin] = c; }
    void prependWhole(quint64 number)
    {
        do {
            prepend(char('0' + number % 10));
            number /= 10;
        } while (number > 0);
    }
    void appendTo(QByteArray& bytes) const { bytes.append(m_text + m_begin, int(sizeof m_text) - m_begin); }

private:
    char m_text[32];
    int m_begin = int(sizeof m_text);
};

/// With the mark of its order, and lone surrogates replaced.
QByteArray utf16(const QString& text)
{
    const QByteArray utf8 = text.toUtf8();
    QByteArray bytes("\xfe\xff");
    for (const QChar c : QString::fromUtf8(utf8.constData(), utf8.size())) {
        bytes += char(c.row());
        bytes += char(c.cell());
    }
    return bytes;
}

} // namespace

void appendHundredths(QByteArray& bytes, qint64 hundredths)
{
    Digits digits;
    const quint64 amount = quint64(qAbs(hundredths));
    const int fraction = int(amount % 100);
    if (fraction % 10 != 0)
        digits.prepend(char('0' + fraction % 10));
    if (fraction != 0) {
        digits.prepend(char('0' + fraction / 10));
        digits.prepend('.');
    }
    digits.prependWhole(amount / 100);
    if (hundredths < 0)
        digits.prepend('-');
    digits.appendTo(bytes);
}

void appendInteger(QByteArray& bytes, qint64 number)
{
    Digits digits;
    digits.prependWhole(quint64(qAbs(number)));
    if (number < 0)
        digits.prepend('-');
    digits.appendTo(bytes);
}

void appendReference(QByteArray& bytes, int object)
{
    appendInteger(bytes, object);
    bytes.append(" 0 R", 4);
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
