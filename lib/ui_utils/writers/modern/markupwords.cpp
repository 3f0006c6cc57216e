#include "writers/modern/markupwords_p.h"

#include "base/xmltext_p.h"

#include <QStringView>
#include <QTextBoundaryFinder>

#include <algorithm>

namespace uiutils {

namespace {

/// A break after less than this, or before the rest of a word that is shorter, looks like a mistake.
constexpr int shortestPiece = 4;
const QLatin1String breakMark("<wbr/>");

bool isLineEnd(QChar c)
{
    return c == QLatin1Char('\r') || c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
}

QString plainLines(const QString& given)
{
    QString text = markupText(given);
    if (std::none_of(text.cbegin(), text.cend(), isLineEnd))
        return text;
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    for (QChar& c : text) {
        if (isLineEnd(c))
            c = QLatin1Char('\n');
    }
    return text;
}

void appendEscaped(QString& page, QStringView text)
{
    for (const QChar c : text) {
        switch (c.unicode()) {
        case '<':
            page += QLatin1String("&lt;");
            break;
        case '>':
            page += QLatin1String("&gt;");
            break;
        case '&':
            page += QLatin1String("&amp;");
            break;
        case '"':
            page += QLatin1String("&quot;");
            break;
        default:
            page += c;
        }
    }
}

bool isSeparator(QChar c)
{
    return QLatin1String("/\\-_.:,;@&=?#+|").contains(c);
}

/// Whether a reader would break a long word here; never inside a number.
bool isGoodBreak(QChar before, QChar after)
{
    if (isSeparator(before))
        return !isSeparator(after) && !after.isDigit();
    return before.isLower() && after.isUpper();
}

/// Browsers know where words of other scripts break, or whose letters must stay joined.
bool isOfLetterScript(QChar c)
{
    constexpr ushort firstRightToLeft = 0x590;
    constexpr ushort furtherLatin = 0x1e00;
    constexpr ushort firstIdeograph = 0x2e80;
    const ushort code = c.unicode();
    return code < firstRightToLeft || (code >= furtherLatin && code < firstIdeograph);
}

void appendLongWord(QString& page, QStringView word)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, word.data(), int(word.size()));
    int begin = 0;
    for (int i = finder.toNextBoundary(); i > 0 && i < word.size(); i = finder.toNextBoundary()) {
        const QChar before = word.at(i - 1);
        const int length = i - begin;
        const bool isGood = length >= shortestPiece && isGoodBreak(before, word.at(i));
        const bool isNeeded = length >= longestPiece && isOfLetterScript(before);
        if ((!isGood && !isNeeded) || word.size() - i < shortestPiece)
            continue;
        appendEscaped(page, word.mid(begin, length));
        page += breakMark;
        begin = i;
    }
    appendEscaped(page, word.mid(begin));
}

void appendWord(QString& page, QStringView word)
{
    if (word.size() > longestPiece)
        appendLongWord(page, word);
    else
        appendEscaped(page, word);
}

qsizetype wordEnd(QStringView text, qsizetype from)
{
    const auto end = std::find_if(text.begin() + from, text.end(), [](QChar c) { return c.isSpace(); });
    return end - text.begin();
}

bool isRightToLeft(QChar c)
{
    return c.direction() == QChar::DirR || c.direction() == QChar::DirAL;
}

/// "-12.3", "9.00-10.00", "12:30".
bool isNumeric(QStringView word)
{
    const auto isOfNumber = [](QChar c) {
        constexpr ushort minus = 0x2212;
        constexpr ushort enDash = 0x2013;
        return c.isDigit() || c.unicode() == minus || c.unicode() == enDash || QLatin1String("+-.,:/%").contains(c);
    };
    return std::any_of(word.begin(), word.end(), [](QChar c) { return c.isDigit(); })
            && std::all_of(word.begin(), word.end(), isOfNumber);
}

/// Where the number that begins at `from` ends, with its unit if that is written from left to right; `from` if there is
/// no number.
qsizetype numberEnd(QStringView text, qsizetype from)
{
    const qsizetype end = wordEnd(text, from);
    if (!isNumeric(text.mid(from, end - from)))
        return from;
    if (end == text.size() || text.at(end) != QLatin1Char(' '))
        return end;
    const qsizetype unitEnd = wordEnd(text, end + 1);
    const QStringView unit = text.mid(end + 1, unitEnd - end - 1);
    const bool isUnit = !unit.isEmpty() && std::none_of(unit.begin(), unit.end(), isRightToLeft)
            && std::any_of(unit.begin(), unit.end(), [](QChar c) { return c.isLetter() || c == QLatin1Char('%'); });
    return isUnit ? unitEnd : end;
}

void appendIsolated(QString& page, QStringView text)
{
    page += QLatin1String("<bdi dir=\"ltr\">");
    appendEscaped(page, text);
    page += QLatin1String("</bdi>");
}

} // namespace

void appendAttribute(QString& page, QLatin1String name, const QString& value)
{
    page += QLatin1Char(' ');
    page += name;
    page += QLatin1String("=\"");
    appendEscaped(page, plainLines(value));
    page += QLatin1Char('"');
}

void appendText(QString& page, const QString& text)
{
    appendEscaped(page, plainLines(text));
}

void appendWords(QString& page, const QString& given)
{
    const QString plain = plainLines(given);
    const QStringView text(plain);
    const bool hasRightToLeft = std::any_of(text.begin(), text.end(), isRightToLeft);
    qsizetype i = 0;
    while (i < text.size()) {
        const qsizetype isolated = hasRightToLeft ? numberEnd(text, i) : i;
        if (isolated > i) {
            appendIsolated(page, text.mid(i, isolated - i));
            i = isolated;
        }
        const qsizetype end = wordEnd(text, i);
        appendWord(page, text.mid(i, end - i));
        if (end < text.size())
            page += text.at(end);
        i = end + 1;
    }
}

void appendValue(QString& page, const QString& text)
{
    page += QLatin1String("<bdi>");
    appendWords(page, text);
    page += QLatin1String("</bdi>");
}

} // namespace uiutils
