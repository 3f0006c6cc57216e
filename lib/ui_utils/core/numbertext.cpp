#include "core/numbertext_p.h"

#include <algorithm>

namespace uiutils {

namespace {

bool isDigit(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

/// Takes digits with separators between them off the front. A text with a second point is no number but a version or an
/// address.
bool takeDigits(QStringView& text)
{
    int points = 0;
    int end = 0;
    while (end < text.size()) {
        const QChar c = text.at(end);
        const bool isPoint = c == QLatin1Char('.');
        const bool isSeparator = isPoint || c == QLatin1Char(',');
        const bool isInside = end > 0 && end + 1 < text.size() && isDigit(text.at(end + 1));
        if (!isDigit(c) && !(isSeparator && isInside))
            break;
        points += isPoint ? 1 : 0;
        ++end;
    }
    text = text.mid(end);
    return end > 0 && points < 2;
}

void takeSign(QStringView& text)
{
    constexpr ushort minus = 0x2212;
    if (!text.isEmpty()
            && (text.front() == QLatin1Char('-') || text.front() == QLatin1Char('+')
                    || text.front().unicode() == minus))
        text = text.mid(1);
}

} // namespace

bool isNumber(QStringView text)
{
    constexpr int longest = 40;
    if (text.size() > longest)
        return false;
    takeSign(text);
    if (!takeDigits(text))
        return false;
    QStringView exponent = text.mid(1);
    if (!text.isEmpty() && text.front().toLower() == QLatin1Char('e')) {
        takeSign(exponent);
        if (takeDigits(exponent))
            text = exponent;
    }
    if (!text.isEmpty() && text.front() == QLatin1Char(' '))
        text = text.mid(1);
    return std::none_of(text.begin(), text.end(),
            [](QChar c) { return isDigit(c) || c.isSpace() || c == QLatin1Char(':') || c == QLatin1Char('-'); });
}

} // namespace uiutils
