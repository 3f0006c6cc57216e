#include "writers/csv/csvfield_p.h"

#include <QLocale>
#include <QtMath>

#include <algorithm>

namespace uiutils {

namespace {

constexpr ushort minusSign = 0x2212;
constexpr int longestNumber = 40;
constexpr int longestUnit = 12;

bool isDigit(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

int digitsAt(QStringView text, int begin)
{
    int end = begin;
    while (end < text.size() && isDigit(text.at(end)))
        ++end;
    return end - begin;
}

bool isSign(QChar c)
{
    return c == QLatin1Char('-') || c == QLatin1Char('+') || c.unicode() == minusSign;
}

bool isAt(QStringView text, int place, char c)
{
    return place < text.size() && text.at(place) == QLatin1Char(c);
}

/// The length of the integer part at `begin`; `groups` is the number of its separators.
int integerAt(QStringView text, int begin, int* groups)
{
    constexpr int groupLength = 3;
    const int first = digitsAt(text, begin);
    int end = begin + first;
    while (first > 0 && first <= groupLength && isAt(text, end, ',') && digitsAt(text, end + 1) == groupLength) {
        end += 1 + groupLength;
        ++*groups;
    }
    return end - begin;
}

int exponentAt(QStringView text, int begin)
{
    if (!isAt(text, begin, 'e') && !isAt(text, begin, 'E'))
        return 0;
    const int digits = begin + 1 + (begin + 1 < text.size() && isSign(text.at(begin + 1)) ? 1 : 0);
    const int count = digitsAt(text, digits);
    return count > 0 ? digits + count - begin : 0;
}

/// The length of the number in front of the text; 0 if there is none.
int numberLength(QStringView text)
{
    int groups = 0;
    int end = !text.isEmpty() && isSign(text.front()) ? 1 : 0;
    const int integer = integerAt(text, end, &groups);
    end += integer;
    const int fraction = isAt(text, end, '.') ? digitsAt(text, end + 1) : 0;
    if ((integer == 0 && fraction == 0) || (groups == 1 && fraction == 0))
        return 0;
    end += fraction > 0 ? fraction + 1 : 0;
    return end + exponentAt(text, end);
}

bool isUnit(QStringView text)
{
    if (text.isEmpty() || text.size() > longestUnit)
        return false;
    const QChar first = text.front();
    if (!first.isLetter() && !QStringView(u"%\u2030\u00b0\u2032\u2033").contains(first))
        return false;
    // "dB/100m" is one, "3 Port7" has none.
    const auto digits = std::find_if(text.begin(), text.end(), isDigit);
    return std::none_of(text.begin(), text.end(), [](QChar c) { return c.isSpace() || c == QLatin1Char(':'); })
            && (digits == text.end() || std::find(text.begin(), digits, QLatin1Char('/')) != digits);
}

bool isDangerous(QChar c)
{
    return QStringView(u"=+-@\uff1d\uff0b\uff0d\uff20").contains(c);
}

/// Whether a spreadsheet could take the text for a formula. "--" stands for a missing value.
bool looksLikeFormula(QStringView text)
{
    return !text.isEmpty() && isDangerous(text.front())
            && std::any_of(text.begin(), text.end(), [](QChar c) { return c != QLatin1Char('-'); });
}

/// A text that is written as it is, whatever reads the file: most are.
bool isSimple(QStringView text)
{
    const auto isSafe = [](QChar c) {
        return c > QLatin1Char(' ')
                ? c < QLatin1Char(0x7f) && c != QLatin1Char('"') && c != QLatin1Char(',') && c != QLatin1Char(';')
                : c == QLatin1Char(' ');
    };
    return std::all_of(text.begin(), text.end(), isSafe) && !looksLikeFormula(text);
}

void appendAscii(QByteArray& bytes, QStringView text)
{
    const int end = bytes.size();
    bytes.resize(end + int(text.size()));
    std::transform(text.begin(), text.end(), bytes.data() + end, [](QChar c) { return char(c.unicode()); });
}

} // namespace

Quantity quantityOf(QStringView text)
{
    constexpr int longest = longestNumber + longestUnit + 1;
    if (text.size() > longest)
        return {};
    const int length = numberLength(text);
    const QStringView number = text.left(length);
    const QStringView rest = text.mid(length);
    if (length == 0 || rest.isEmpty())
        return {number, {}};
    const QStringView unit = rest.trimmed();
    // "5G" and "802.11ac" are names.
    const bool isApart = rest.front().isSpace() || !unit.front().isLetter();
    return isApart && isUnit(unit) ? Quantity {number, unit} : Quantity();
}

CsvLines::CsvLines(bool hasDecimalComma, bool hasByteOrderMark)
    : m_separator(hasDecimalComma ? ';' : ',')
    , m_decimal(hasDecimalComma ? ',' : '.')
    , m_bytes(hasByteOrderMark ? "\xef\xbb\xbf" : "")
{
}

void CsvLines::startField()
{
    if (!m_isLineEmpty)
        m_bytes += m_separator;
    m_isLineEmpty = false;
}

void CsvLines::endLine()
{
    m_bytes += "\r\n";
    m_isLineEmpty = true;
}

/// A spreadsheet that expects the other separator ends its cells there, and at line ends within quotes too: what is
/// dangerous at the beginning of a cell is so after these.
QString CsvLines::harmless(const QString& text) const
{
    const QLatin1Char other(m_separator == ',' ? ';' : ',');
    QString result;
    bool isCellStart = true;
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (isCellStart && isDangerous(c) && (i > 0 || looksLikeFormula(text)))
            result += QLatin1Char('\'');
        isCellStart = c == other || c == QLatin1Char('\n') || (isCellStart && c == QLatin1Char('"'));
        result += c;
    }
    return result;
}

void CsvLines::putText(QStringView text)
{
    startField();
    if (isSimple(text))
        return appendAscii(m_bytes, text);
    QString field = harmless(text.toString());
    const bool isQuoted
            = std::any_of(field.cbegin(), field.cend(), [](QChar c) { return QStringView(u",;\"\n\r\t").contains(c); });
    field.replace(QLatin1Char('"'), QLatin1String("\"\""));
    m_bytes += isQuoted ? '"' + field.toUtf8() + '"' : field.toUtf8();
}

void CsvLines::putNumber(QStringView number)
{
    startField();
    for (const QChar c : number) {
        if (c == QLatin1Char('.'))
            m_bytes += m_decimal;
        else if (c != QLatin1Char(','))
            m_bytes += c.unicode() == minusSign ? '-' : char(c.unicode());
    }
}

void CsvLines::putNumber(double number)
{
    startField();
    if (!qIsFinite(number))
        return;
    const QByteArray digits = QByteArray::number(number, 'g', QLocale::FloatingPointShortest);
    m_bytes += m_decimal == '.' ? digits : QByteArray(digits).replace('.', m_decimal);
}

} // namespace uiutils
