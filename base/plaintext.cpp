#include "base/plaintext_p.h"

#include "base/xmltext_p.h"

#include <algorithm>
#include <iterator>

namespace uiutils {

namespace {

struct Range
{
    uint first;
    uint last;
};

/// Letters that take two columns in terminals; unassigned characters count like their neighbours.
constexpr Range wideRanges[] = {
        {0x1100, 0x115f},
        {0x231a, 0x231b},
        {0x2329, 0x232a},
        {0x23e9, 0x23ec},
        {0x23f0, 0x23f0},
        {0x23f3, 0x23f3},
        {0x25fd, 0x25fe},
        {0x2614, 0x2615},
        {0x2648, 0x2653},
        {0x267f, 0x267f},
        {0x2693, 0x2693},
        {0x26a1, 0x26a1},
        {0x26aa, 0x26ab},
        {0x26bd, 0x26be},
        {0x26c4, 0x26c5},
        {0x26ce, 0x26ce},
        {0x26d4, 0x26d4},
        {0x26ea, 0x26ea},
        {0x26f2, 0x26f3},
        {0x26f5, 0x26f5},
        {0x26fa, 0x26fa},
        {0x26fd, 0x26fd},
        {0x2705, 0x2705},
        {0x270a, 0x270b},
        {0x2728, 0x2728},
        {0x274c, 0x274c},
        {0x274e, 0x274e},
        {0x2753, 0x2755},
        {0x2757, 0x2757},
        {0x2795, 0x2797},
        {0x27b0, 0x27b0},
        {0x27bf, 0x27bf},
        {0x2b1b, 0x2b1c},
        {0x2b50, 0x2b50},
        {0x2b55, 0x2b55},
        {0x2e80, 0x303e},
        {0x3041, 0xa4cf},
        {0xa960, 0xa97f},
        {0xac00, 0xd7a3},
        {0xf900, 0xfaff},
        {0xfe10, 0xfe19},
        {0xfe30, 0xfe6f},
        {0xff01, 0xff60},
        {0xffe0, 0xffe6},
        {0x16fe0, 0x1b2ff},
        {0x1f004, 0x1f004},
        {0x1f0cf, 0x1f0cf},
        {0x1f18e, 0x1f18e},
        {0x1f191, 0x1f19a},
        {0x1f200, 0x1f320},
        {0x1f32d, 0x1f335},
        {0x1f337, 0x1f37c},
        {0x1f37e, 0x1f393},
        {0x1f3a0, 0x1f3ca},
        {0x1f3cf, 0x1f3d3},
        {0x1f3e0, 0x1f3f0},
        {0x1f3f4, 0x1f3f4},
        {0x1f3f8, 0x1f43e},
        {0x1f440, 0x1f440},
        {0x1f442, 0x1f4fc},
        {0x1f4ff, 0x1f53d},
        {0x1f54b, 0x1f54e},
        {0x1f550, 0x1f567},
        {0x1f57a, 0x1f57a},
        {0x1f595, 0x1f596},
        {0x1f5a4, 0x1f5a4},
        {0x1f5fb, 0x1f64f},
        {0x1f680, 0x1f6c5},
        {0x1f6cc, 0x1f6cc},
        {0x1f6d0, 0x1f6d2},
        {0x1f6d5, 0x1f6df},
        {0x1f6eb, 0x1f6ec},
        {0x1f6f4, 0x1f6ff},
        {0x1f7e0, 0x1f7f0},
        {0x1f90c, 0x1f93a},
        {0x1f93c, 0x1f945},
        {0x1f947, 0x1f9ff},
        {0x1fa70, 0x1faff},
        {0x20000, 0x3fffd},
};

// Below these, all letters take one column; the soft hyphen is shown as a hyphen.
constexpr uint firstMark = 0x300;
constexpr uint firstWide = 0x1100;

bool isMark(uint c)
{
    // Vowels and final consonants of Hangul combine with the letter before them.
    if ((c >= 0x1160 && c <= 0x11ff) || (c >= 0xd7b0 && c <= 0xd7ff))
        return true;
    const QChar::Category category = QChar::category(c);
    return category == QChar::Mark_NonSpacing || category == QChar::Mark_Enclosing || category == QChar::Other_Format;
}

int columnsOf(uint c)
{
    if (c < firstMark)
        return 1;
    if (isMark(c))
        return 0;
    if (c < firstWide)
        return 1;
    const Range* range = std::lower_bound(std::begin(wideRanges), std::end(wideRanges), c,
            [](const Range& range, uint letter) { return range.last < letter; });
    return range != std::end(wideRanges) && range->first <= c ? 2 : 1;
}

/// The letter at `index`; moves the index past it.
uint takeLetter(QStringView text, int& index)
{
    const QChar first = text.at(index++);
    if (!first.isHighSurrogate() || index >= text.size() || !text.at(index).isLowSurrogate())
        return first.unicode();
    return QChar::surrogateToUcs4(first, text.at(index++));
}

bool turnsDirection(ushort c)
{
    return (c >= 0x202a && c <= 0x202e) || (c >= 0x2066 && c <= 0x2069);
}

/// Whether plainText() keeps the character unchanged, whatever its neighbours are.
bool isPlain(QChar character)
{
    const ushort c = character.unicode();
    if (c < 0x7f)
        return c >= 0x20 || c == '\n';
    return c >= 0xa0 && c < 0xd800 && !turnsDirection(c) && c != 0x2028 && c != 0x2029;
}

QStringView trimmedEnd(QStringView line)
{
    while (!line.isEmpty() && line.back() == QLatin1Char(' '))
        line.chop(1);
    return line;
}

} // namespace

bool isSimpleText(const QString& text)
{
    return std::all_of(text.cbegin(), text.cend(), [](QChar character) {
        const ushort c = character.unicode();
        return c >= 0x20 && c < firstMark && (c < 0x7f || c >= 0xa0);
    });
}

QString plainText(const QString& text)
{
    if (std::all_of(text.cbegin(), text.cend(), isPlain))
        return text;
    const QString clean = markupText(text);
    QString plain;
    plain.reserve(clean.size());
    for (int i = 0; i < clean.size(); ++i) {
        const ushort c = clean.at(i).unicode();
        if (c == '\t')
            plain += QLatin1Char(' ');
        else if (c == 0x2028 || c == 0x2029)
            plain += QLatin1Char('\n');
        else if (c == '\r' && i + 1 < clean.size() && clean.at(i + 1) == QLatin1Char('\n'))
            continue;
        else if (!turnsDirection(c))
            plain += c == '\r' ? QChar(QLatin1Char('\n')) : clean.at(i);
    }
    return plain;
}

int displayWidth(QStringView line)
{
    int width = 0;
    for (int i = 0; i < line.size();)
        width += columnsOf(takeLetter(line, i));
    return width;
}

QStringView takeLine(QStringView& text, int width)
{
    const auto taken = [&text](int end, int next) {
        const QStringView line = trimmedEnd(text.left(end));
        text = text.mid(next);
        return line;
    };
    // Where the last run of blanks after a word begins and ends.
    int wordEnd = -1;
    int nextWord = 0;
    bool isAfterWord = false;
    int columns = 0;
    for (int i = 0; i < text.size();) {
        const int place = i;
        const uint c = takeLetter(text, i);
        if (c == '\n')
            return taken(place, i);
        columns += columnsOf(c);
        if (c == ' ') {
            if (isAfterWord)
                wordEnd = place;
            if (wordEnd >= 0)
                nextWord = i;
            isAfterWord = false;
        } else if (columns <= width || place == 0) {
            isAfterWord = true;
        } else if (wordEnd >= 0) {
            return taken(wordEnd, nextWord);
        } else {
            return taken(place, place);
        }
    }
    return taken(text.size(), text.size());
}

} // namespace uiutils
