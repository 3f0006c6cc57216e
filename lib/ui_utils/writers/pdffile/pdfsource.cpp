#include "writers/pdffile/pdfsource_p.h"

#include <algorithm>
#include <climits>
#include <cstring>

namespace uiutils::pdf {

namespace {

constexpr int mostEntries = 256;
constexpr int longestDictionary = 1024 * 1024;
constexpr int deepest = 16;
constexpr int mostDigits = 15;

bool isBlank(char c)
{
    return c == '\0' || c == '\t' || c == '\n' || c == '\f' || c == '\r' || c == ' ';
}

/// Part of a name, a number or a keyword.
bool isRegular(char c)
{
    return !isBlank(c) && !std::strchr("()<>[]{}/%", c);
}

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool isOctal(char c)
{
    return c >= '0' && c <= '7';
}

/// -1 if it is no digit.
int hexadecimalValue(char c)
{
    if (isDigit(c))
        return c - '0';
    const char lower = char(c | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

QByteArray nameSource(const QByteArray& name)
{
    QByteArray source("/");
    for (const char c : name) {
        if (isRegular(c) && c > ' ' && c <= '~' && c != '#')
            source += c;
        else
            source += '#' + QByteArray(1, c).toHex();
    }
    return source;
}

} // namespace

QByteArray Dictionary::value(const QByteArray& name) const
{
    for (const Entry& entry : m_entries) {
        if (entry.name == name)
            return entry.value;
    }
    return QByteArray();
}

void Dictionary::set(const QByteArray& name, const QByteArray& value)
{
    for (Entry& entry : m_entries) {
        if (entry.name == name) {
            entry.value = value;
            return;
        }
    }
    m_entries += {name, value};
}

void Dictionary::remove(const QByteArray& name)
{
    const auto isIt = [&name](const Entry& entry) { return entry.name == name; };
    m_entries.erase(std::remove_if(m_entries.begin(), m_entries.end(), isIt), m_entries.end());
}

QByteArray sourceOf(const Dictionary& dictionary)
{
    QByteArray source("<<");
    for (const Dictionary::Entry& entry : dictionary.entries())
        source += nameSource(entry.name) + ' ' + entry.value + '\n';
    return source + ">>";
}

Source::Source(const QByteArray& bytes, qint64 position)
    : m_bytes(bytes)
    , m_position(position >= 0 && position < bytes.size() ? int(position) : bytes.size())
{
}

/// Beyond the end there are zeros.
char Source::at(int position) const
{
    return position < m_bytes.size() ? m_bytes.at(position) : '\0';
}

void Source::passBlanks()
{
    while (m_position < m_bytes.size() && isBlank(at(m_position)))
        ++m_position;
}

int Source::wordEnd() const
{
    int end = m_position;
    while (end < m_bytes.size() && isRegular(at(end)))
        ++end;
    return end;
}

bool Source::isAt(int end)
{
    passBlanks();
    return m_position == end;
}

bool Source::take(const char* word)
{
    const int size = int(std::strlen(word));
    passBlanks();
    if (size > m_bytes.size() - m_position || std::memcmp(m_bytes.constData() + m_position, word, size_t(size)) != 0)
        return false;
    m_position += size;
    return !isRegular(word[size - 1]) || !isRegular(at(m_position));
}

qint64 Source::takeNumber()
{
    passBlanks();
    const int end = wordEnd();
    const char* digits = m_bytes.constData() + m_position;
    const int count = end - m_position;
    if (count < 1 || count > mostDigits || !std::all_of(digits, digits + count, isDigit))
        return -1;
    qint64 number = 0;
    for (; m_position < end; ++m_position)
        number = number * 10 + (at(m_position) - '0');
    return number;
}

int Source::takeReference()
{
    const qint64 number = takeNumber();
    return number > 0 && number <= INT_MAX && takeNumber() == 0 && take("R") ? int(number) : -1;
}

bool Source::takeNumbers(QVector<qint64>* numbers, int most)
{
    if (!take("["))
        return false;
    while (!take("]")) {
        *numbers += takeNumber();
        if (numbers->size() > most || numbers->constLast() < 0)
            return false;
    }
    return true;
}

bool Source::takeObject(qint64 number)
{
    return takeNumber() == number && takeNumber() == 0 && take("obj");
}

bool Source::takeStream(qint64 length, QByteArray* data)
{
    if (length < 0 || !take("stream"))
        return false;
    if (at(m_position) == '\r')
        ++m_position;
    if (at(m_position) != '\n' || length >= m_bytes.size() - m_position)
        return false;
    *data = QByteArray::fromRawData(m_bytes.constData() + m_position + 1, int(length));
    m_position += 1 + int(length);
    return take("endstream") && take("endobj");
}

/// Null if there is none. A name may be empty, but none that is expected is.
QByteArray Source::takeName()
{
    if (!take("/"))
        return QByteArray();
    QByteArray name("");
    for (const int end = wordEnd(); m_position < end; ++m_position) {
        const int high = hexadecimalValue(at(m_position + 1));
        const int low = hexadecimalValue(at(m_position + 2));
        const bool coded = at(m_position) == '#' && high >= 0 && low >= 0;
        name += coded ? char(high * 16 + low) : at(m_position);
        m_position += coded ? 2 : 0;
    }
    return name;
}

bool Source::takeDictionary(Dictionary* dictionary)
{
    if (!take("<<"))
        return false;
    const int begin = m_position;
    while (!take(">>")) {
        const QByteArray name = takeName();
        passBlanks();
        const int value = m_position;
        if (name.isNull() || !dictionary->value(name).isNull() || !passValue(deepest)
                || dictionary->entries().size() == mostEntries || m_position - begin > longestDictionary)
            return false;
        dictionary->set(name, m_bytes.mid(value, m_position - value));
    }
    return true;
}

bool Source::passValue(int depth)
{
    passBlanks();
    switch (at(m_position)) {
    case '/':
        return !takeName().isNull();
    case '(':
        return !takeLiteral().isNull();
    case '[':
        return passArray(depth - 1);
    case '<':
        return at(m_position + 1) == '<' ? passDictionary(depth - 1) : !takeHexadecimal().isNull();
    default:
        return passWord();
    }
}

/// A word, or the three of a reference.
bool Source::passWord()
{
    const int begin = m_position;
    m_position = wordEnd();
    const int end = m_position;
    const bool isNumber = end > begin && isDigit(at(begin));
    if (!isNumber || takeNumber() < 0 || !take("R"))
        m_position = end;
    return end > begin;
}

bool Source::passArray(int depth)
{
    if (depth == 0 || !take("["))
        return false;
    while (!take("]")) {
        if (!passValue(depth))
            return false;
    }
    return true;
}

bool Source::passDictionary(int depth)
{
    if (depth == 0 || !take("<<"))
        return false;
    while (!take(">>")) {
        if (takeName().isNull() || !passValue(depth))
            return false;
    }
    return true;
}

QByteArray Source::takeString()
{
    passBlanks();
    return at(m_position) == '(' ? takeLiteral() : takeHexadecimal();
}

QByteArray Source::takeLiteral()
{
    QByteArray result("");
    int open = 1;
    for (++m_position; m_position < m_bytes.size();) {
        char c = at(m_position++);
        open += c == '(' ? 1 : c == ')' ? -1 : 0;
        if (open == 0)
            return result;
        if (c == '\r') {
            m_position += at(m_position) == '\n' ? 1 : 0;
            c = '\n';
        }
        if (c == '\\')
            takeEscape(&result);
        else
            result += c;
    }
    return QByteArray();
}

/// What follows a backslash.
void Source::takeEscape(QByteArray* result)
{
    constexpr char letters[] = "nrtbf";
    constexpr char meant[] = "\n\r\t\b\f";
    const char c = at(m_position++);
    if (isOctal(c)) {
        int code = c - '0';
        for (int digits = 1; digits < 3 && isOctal(at(m_position)); ++digits)
            code = code * 8 + (at(m_position++) - '0');
        *result += char(code);
    } else if (c == '\r' || c == '\n') {
        // A line that is continued.
        m_position += c == '\r' && at(m_position) == '\n' ? 1 : 0;
    } else {
        const char* letter = c != '\0' ? std::strchr(letters, c) : nullptr;
        *result += letter ? meant[letter - letters] : c;
    }
}

QByteArray Source::takeHexadecimal()
{
    if (!take("<"))
        return QByteArray();
    QByteArray digits;
    for (; hexadecimalValue(at(m_position)) >= 0 || isBlank(at(m_position)); ++m_position) {
        if (m_position >= m_bytes.size())
            return QByteArray();
        if (!isBlank(at(m_position)))
            digits += at(m_position);
    }
    if (at(m_position++) != '>')
        return QByteArray();
    // A digit that is missing at the end is a zero.
    if (digits.size() % 2 != 0)
        digits += '0';
    return digits.isEmpty() ? QByteArray("") : QByteArray::fromHex(digits);
}

} // namespace uiutils::pdf
