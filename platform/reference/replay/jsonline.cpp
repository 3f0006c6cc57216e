#include "jsonline_p.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>

namespace kiv::replay {

namespace {

bool isPlain(QChar c)
{
    const ushort code = c.unicode();
    return code >= 0x20 && code < 0x7f && code != '"' && code != '\\';
}

bool isDirectionMark(ushort code)
{
    return code == 0x200e || code == 0x200f || (code >= 0x202a && code <= 0x202e) || (code >= 0x2066 && code <= 0x2069);
}

/// Control characters, ends of lines, what reverses a line, and halves of characters, which UTF-8 cannot hold.
bool isEscaped(const QString& text, int i)
{
    const QChar c = text.at(i);
    const ushort code = c.unicode();
    if (code < 0x20 || (code >= 0x7f && code < 0xa0) || code == 0x2028 || code == 0x2029 || isDirectionMark(code))
        return true;
    if (c.isHighSurrogate())
        return i + 1 == text.size() || !text.at(i + 1).isLowSurrogate();
    return c.isLowSurrogate() && (i == 0 || !text.at(i - 1).isHighSurrogate());
}

void appendEscape(QByteArray* line, ushort code)
{
    line->append("\\u");
    line->append(QByteArray::number(code, 16).rightJustified(4, '0'));
}

void appendOthers(QByteArray* line, const QString& text)
{
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (isPlain(c)) {
            line->append(char(c.unicode()));
        } else if (c == QLatin1Char('"') || c == QLatin1Char('\\')) {
            line->append('\\').append(char(c.unicode()));
        } else if (c == QLatin1Char('\n')) {
            line->append("\\n");
        } else if (isEscaped(text, i)) {
            appendEscape(line, c.unicode());
        } else {
            const int length = c.isHighSurrogate() ? 2 : 1;
            line->append(text.mid(i, length).toUtf8());
            i += length - 1;
        }
    }
}

/// What Qt makes of a number takes several times as long.
template<class Number> void appendDigits(QByteArray* line, Number number)
{
    char digits[32];
    const std::to_chars_result end = std::to_chars(std::begin(digits), std::end(digits), number);
    line->append(digits, int(end.ptr - digits));
}

void appendNumber(QByteArray* line, double number)
{
    // Up to here people read digits more easily than exponents.
    constexpr double mostWhole = 1e15;
    if (!std::isfinite(number))
        line->append(std::isnan(number) ? "\"nan\"" : number > 0 ? "\"inf\"" : "\"-inf\"");
    else if (std::abs(number) < mostWhole && number == std::floor(number) && (number != 0 || !std::signbit(number)))
        appendDigits(line, qint64(number));
    else
        appendDigits(line, number);
}

template<class List> void appendList(QByteArray* line, const List& list)
{
    line->append('[');
    bool isFirst = true;
    for (const auto& element : list) {
        if (!isFirst)
            line->append(',');
        isFirst = false;
        if constexpr (std::is_same_v<List, QStringList>)
            appendText(line, element);
        else
            appendValue(line, element);
    }
    line->append(']');
}

void appendMap(QByteArray* line, const QVariantMap& map)
{
    line->append('{');
    for (auto it = map.cbegin(); it != map.cend(); ++it) {
        if (it != map.cbegin())
            line->append(',');
        appendText(line, it.key());
        line->append(':');
        appendValue(line, *it);
    }
    line->append('}');
}

} // namespace

void appendText(QByteArray* line, const QString& text)
{
    line->append('"');
    if (std::all_of(text.cbegin(), text.cend(), isPlain)) {
        const int begin = line->size();
        line->resize(begin + text.size());
        std::transform(text.cbegin(), text.cend(), line->begin() + begin, [](QChar c) { return char(c.unicode()); });
    } else {
        appendOthers(line, text);
    }
    line->append('"');
}

void appendValue(QByteArray* line, const QVariant& value)
{
    switch (int(value.userType())) {
    case QMetaType::UnknownType:
    case QMetaType::Nullptr:
        line->append("null");
        break;
    case QMetaType::Bool:
        line->append(value.toBool() ? "true" : "false");
        break;
    case QMetaType::Int:
    case QMetaType::LongLong:
        appendDigits(line, value.toLongLong());
        break;
    case QMetaType::UInt:
    case QMetaType::ULongLong:
        appendDigits(line, value.toULongLong());
        break;
    case QMetaType::Float:
    case QMetaType::Double:
        appendNumber(line, value.toDouble());
        break;
    case QMetaType::QStringList:
        appendList(line, value.toStringList());
        break;
    case QMetaType::QVariantList:
        appendList(line, value.toList());
        break;
    case QMetaType::QVariantMap:
        appendMap(line, value.toMap());
        break;
    default:
        appendText(line, value.toString());
    }
}

void appendField(QByteArray* line, const char* name, const QVariant& value)
{
    line->append(",\"").append(name).append("\":");
    appendValue(line, value);
}

} // namespace kiv::replay
