#include "writers/pages/linebreaks_p.h"

#include <algorithm>

namespace uiutils {

namespace {

/// Letters of the longest unit that is not divided, as "dB/km" or "Mbit/s".
constexpr int longestUnit = 6;

QChar charAt(QStringView text, int at)
{
    return at >= 0 && at < text.size() ? text.at(at) : QChar();
}

bool isOneOf(QChar c, QStringView characters)
{
    return std::find(characters.begin(), characters.end(), c) != characters.end();
}

bool isSign(QChar c)
{
    return isOneOf(c, u"+-\u2212\u00b1~<>\u2264\u2265\u2248=");
}

bool isDash(QChar c)
{
    return isOneOf(c, u"-\u2013\u2212\u2026");
}

bool isSeparator(QChar c)
{
    return isOneOf(c, u"/-_.:,@;=&?\\|");
}

/// Whether the word at `at` can be the unit of a number: few letters, none of them a digit.
bool isUnit(QStringView text, int at)
{
    const int limit = qMin(int(text.size()), at + longestUnit + 1);
    int end = at;
    while (end < limit && !text.at(end).isSpace()) {
        if (text.at(end).isDigit())
            return false;
        ++end;
    }
    return end > at && end - at <= longestUnit;
}

bool isPartOfNumber(QStringView text, int separator)
{
    return charAt(text, separator - 1).isDigit() && charAt(text, separator + 1).isDigit();
}

/// Whether the character is a sign of a number that begins after it.
bool isLeadingSign(QStringView text, int at)
{
    return isSign(text.at(at)) && charAt(text, at + 1).isDigit() && !charAt(text, at - 1).isLetterOrNumber();
}

} // namespace

bool isLineBreak(QStringView text, int at)
{
    const QChar before = charAt(text, at - 1);
    const QChar after = charAt(text, at + 1);
    if (before.isDigit())
        return after.isDigit()
                || !(isUnit(text, at + 1) || (isDash(after) && charAt(text, at + 2) == QLatin1Char(' ')));
    const bool standsAlone = at < 2 || text.at(at - 2) == QLatin1Char(' ');
    return !(standsAlone && after.isDigit() && (isSign(before) || isDash(before)));
}

bool isSeam(QStringView text, int at)
{
    const int separator = at - 1;
    if (separator < 1 || at >= text.size() || !isSeparator(text.at(separator)))
        return false;
    const bool isAtEnd = !isSeparator(text.at(at)) || isLeadingSign(text, at);
    return isAtEnd && !isPartOfNumber(text, separator) && !isLeadingSign(text, separator);
}

int tearIn(QStringView text, int begin, int end)
{
    int capital = -1;
    int number = -1;
    for (int at = end; at > begin; --at) {
        const QChar next = charAt(text, at);
        if (next == QLatin1Char(' ') || isSeam(text, at))
            return at;
        const bool isCapital = next.isUpper() && text.at(at - 1).isLower() && at - begin > (end - begin) / 2;
        capital = capital < 0 && isCapital ? at : capital;
        const bool isInNumber = isSeparator(text.at(at - 1)) && isPartOfNumber(text, at - 1);
        number = number < 0 && isInNumber ? at : number;
    }
    return capital > 0 ? capital : number > 0 ? number : end;
}

} // namespace uiutils
