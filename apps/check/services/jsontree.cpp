#include "check/services/jsontree.h"

#include <QSet>

#include <algorithm>
#include <cmath>

namespace uiutils::check {

namespace {

/// As deep as QJsonDocument reads.
constexpr int deepest = 1024;
/// Of 64 bytes each.
constexpr int mostNodes = 4 * 1000 * 1000;
constexpr int mostRemarks = 1000;

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

bool isWordCharacter(char c)
{
    return isDigit(c) || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || c == '$';
}

/// A character as a message shows it.
QString shown(const QByteArray& text, int at)
{
    if (at >= text.size())
        return QStringLiteral("the end of the file");
    const QString rest = QString::fromUtf8(text.mid(at, 4));
    const QChar first = rest.isEmpty() ? QChar() : rest.at(0);
    if (first.isPrint())
        return QLatin1Char('\'') + first + QLatin1Char('\'');
    return QStringLiteral("a character with the code %1").arg(uchar(text.at(at)));
}

class Reader
{
public:
    explicit Reader(const QByteArray& text)
        : m_text(text)
    {
    }

    JsonTree read();

private:
    bool readValue(JsonNode* node, int depth);
    bool readAnyValue(JsonNode* node, int depth);
    bool readObject(JsonNode* node, int depth);
    bool readMember(JsonNode* node, int depth);
    bool readList(JsonNode* node, int depth);
    bool readText(QString* text);
    bool readEscape(QString* text);
    bool readWord(JsonNode* node);
    bool readNumber(JsonNode* node);
    /// Goes on to the next entry; false at the end of the container, or at a mistake.
    bool goOn(char end, int opened);
    void remarkKey(const JsonNode& member, QSet<QString>* keys);
    bool skipBlanks();
    bool fail(int offset, const QString& message);
    bool failAtValue();
    bool isAt(char c) const { return m_at < m_text.size() && m_text.at(m_at) == c; }
    char current() const { return m_at < m_text.size() ? m_text.at(m_at) : '\0'; }

    const QByteArray& m_text;
    int m_at = 0;
    int m_nodes = 0;
    JsonTree m_tree;
};

bool Reader::fail(int offset, const QString& message)
{
    if (m_tree.problem.message.isEmpty())
        m_tree.problem = {std::min(offset, m_text.size()), message};
    return false;
}

/// Comments are no JSON, and the most frequent reason why a file is none.
bool Reader::skipBlanks()
{
    while (m_at < m_text.size() && isBlank(m_text.at(m_at)))
        ++m_at;
    if (isAt('#')
            || (isAt('/') && m_at + 1 < m_text.size() && (m_text.at(m_at + 1) == '/' || m_text.at(m_at + 1) == '*')))
        return fail(m_at, QStringLiteral("A comment: JSON has none. Remove it, or write it into \"title\"."));
    return true;
}

JsonTree Reader::read()
{
    if (m_text.startsWith("\xef\xbb\xbf"))
        m_at = 3;
    if (!skipBlanks())
        return m_tree;
    if (m_at >= m_text.size()) {
        fail(0, QStringLiteral("The file is empty."));
    } else if (!isAt('{') && !isAt('[')) {
        fail(m_at, QStringLiteral("The file must begin with '{', but begins with %1.").arg(shown(m_text, m_at)));
    } else if (readValue(&m_tree.root, 0) && skipBlanks()) {
        if (m_at < m_text.size())
            fail(m_at,
                    QStringLiteral(
                            "There is something after the end of the document: %1. Is there one closing brace too many further up?")
                            .arg(shown(m_text, m_at)));
        else
            m_tree.isRead = true;
    }
    return m_tree;
}

bool Reader::failAtValue()
{
    if (m_at >= m_text.size())
        return fail(m_at, QStringLiteral("The file ends where a value is expected."));
    if (isAt(','))
        return fail(m_at,
                QStringLiteral(
                        "A comma where a value is expected: there is one comma too many, or a value is missing."));
    if (isAt('\''))
        return fail(m_at, QStringLiteral("Texts are written in double quotation marks \"…\", not in single ones."));
    int end = m_at;
    while (end < m_text.size() && isWordCharacter(m_text.at(end)))
        ++end;
    const QString word = QString::fromLatin1(m_text.mid(m_at, std::min(end - m_at, 40)));
    if (word.isEmpty() || isDigit(word.at(0).toLatin1()))
        return fail(m_at, QStringLiteral("A value is expected here, not %1.").arg(shown(m_text, m_at)));
    const QString small = word.toLower();
    if (small == QLatin1String("true") || small == QLatin1String("false") || small == QLatin1String("null"))
        return fail(m_at, QStringLiteral("Write %1 in small letters: %2.").arg(word, small));
    return fail(
            m_at, QStringLiteral("\"%1\" without quotation marks is no value: a text is written \"%1\".").arg(word));
}

bool Reader::readValue(JsonNode* node, int depth)
{
    if (++m_nodes > mostNodes)
        return fail(
                m_at, QStringLiteral("The file holds more than %1 values, more than can be checked.").arg(mostNodes));
    node->offset = m_at;
    const bool isRead = readAnyValue(node, depth);
    node->end = m_at;
    return isRead;
}

bool Reader::readAnyValue(JsonNode* node, int depth)
{
    switch (current()) {
    case '{':
        return readObject(node, depth + 1);
    case '[':
        return readList(node, depth + 1);
    case '"':
        node->kind = JsonNode::Text;
        return readText(&node->text);
    default:
        return current() == '-' || isDigit(current()) ? readNumber(node) : readWord(node);
    }
}

bool Reader::goOn(char end, int opened)
{
    if (!skipBlanks())
        return false;
    if (isAt(end)) {
        ++m_at;
        return false;
    }
    if (isAt(',')) {
        const int comma = m_at++;
        if (!skipBlanks())
            return false;
        return isAt(end) ? fail(comma,
                       QStringLiteral("The comma before '%1' is one too many: nothing follows it.")
                               .arg(QLatin1Char(end)))
                         : true;
    }
    const QString what = end == '}' ? QStringLiteral("object") : QStringLiteral("list");
    if (m_at >= m_text.size())
        return fail(opened,
                QStringLiteral("The %1 that begins here has no end: '%2' is missing.").arg(what).arg(QLatin1Char(end)));
    return fail(m_at,
            QStringLiteral("A comma or '%1' is expected here, not %2.").arg(QLatin1Char(end)).arg(shown(m_text, m_at)));
}

bool Reader::readObject(JsonNode* node, int depth)
{
    const int opened = m_at++;
    node->kind = JsonNode::Object;
    if (depth > deepest)
        return fail(opened, QStringLiteral("Objects and lists are nested more than %1 deep.").arg(deepest));
    if (!skipBlanks())
        return false;
    if (isAt('}')) {
        ++m_at;
        return true;
    }
    QSet<QString> keys;
    do {
        if (!readMember(node, depth))
            return false;
        remarkKey(node->children.back(), &keys);
    } while (goOn('}', opened));
    return m_tree.problem.message.isEmpty();
}

void Reader::remarkKey(const JsonNode& member, QSet<QString>* keys)
{
    if (keys->contains(member.key) && m_tree.doubts.size() < mostRemarks)
        m_tree.doubts.append({member.keyOffset,
                QStringLiteral("The key \"%1\" appears twice in this object; only the last one counts. Remove one.")
                        .arg(member.key.left(100))});
    keys->insert(member.key);
}

bool Reader::readMember(JsonNode* node, int depth)
{
    const int keyOffset = m_at;
    QString key;
    if (!isAt('"')) {
        if (m_at >= m_text.size())
            return fail(node->offset, QStringLiteral("The object that begins here has no end: '}' is missing."));
        if (isDigit(current()) && m_at > 1 && m_text.at(m_at - 1) == ',' && isDigit(m_text.at(m_at - 2)))
            return fail(m_at - 1, QStringLiteral("A number has a decimal point, not a comma: write 1.5, not 1,5."));
        if (isAt('\'') || isWordCharacter(current()))
            return fail(m_at, QStringLiteral("A key is written in double quotation marks, such as \"id\"."));
        return fail(m_at,
                QStringLiteral("A key in double quotation marks is expected here, not %1.").arg(shown(m_text, m_at)));
    }
    if (!readText(&key) || !skipBlanks())
        return false;
    if (!isAt(':'))
        return fail(m_at,
                QStringLiteral("After the key \"%1\" a colon is expected, not %2.")
                        .arg(key.left(100), shown(m_text, m_at)));
    ++m_at;
    if (!skipBlanks())
        return false;
    node->children.emplace_back();
    JsonNode& member = node->children.back();
    member.key = key;
    member.keyOffset = keyOffset;
    return readValue(&member, depth);
}

bool Reader::readList(JsonNode* node, int depth)
{
    const int opened = m_at++;
    node->kind = JsonNode::List;
    if (depth > deepest)
        return fail(opened, QStringLiteral("Objects and lists are nested more than %1 deep.").arg(deepest));
    if (!skipBlanks())
        return false;
    if (isAt(']')) {
        ++m_at;
        return true;
    }
    do {
        node->children.emplace_back();
        node->children.back().keyOffset = m_at;
        if (!readValue(&node->children.back(), depth))
            return false;
    } while (goOn(']', opened));
    return m_tree.problem.message.isEmpty();
}

bool Reader::readText(QString* text)
{
    const int opened = m_at++;
    int plain = m_at;
    const auto takePlain = [&] { *text += QString::fromUtf8(m_text.constData() + plain, m_at - plain); };
    while (m_at < m_text.size() && !isAt('"')) {
        if (uchar(current()) < 0x20 && m_tree.oddities.size() < mostRemarks)
            m_tree.oddities.append({m_at,
                    isAt('\n') ? QStringLiteral(
                            "A text goes on in the next line. JSON has \\n for the end of a line in a text; is a quotation mark missing?")
                               : QStringLiteral(
                                       "A control character in a text: JSON wants it written as an escape, such as \\t.")});
        if (!isAt('\\')) {
            ++m_at;
            continue;
        }
        takePlain();
        if (!readEscape(text))
            return false;
        plain = m_at;
    }
    if (m_at >= m_text.size())
        return fail(opened, QStringLiteral("The text that begins here has no end: a quotation mark is missing."));
    takePlain();
    ++m_at;
    return true;
}

bool Reader::readEscape(QString* text)
{
    const int begin = m_at++;
    const char c = current();
    static const QByteArray letters("\"\\/bfnrt");
    static const QByteArray meanings("\"\\/\b\f\n\r\t");
    if (c == 'u') {
        bool isHex = false;
        const QByteArray digits = m_text.mid(m_at + 1, 4);
        const ushort code = digits.toUShort(&isHex, 16);
        if (!isHex || digits.size() < 4 || !std::all_of(digits.begin(), digits.end(), isWordCharacter))
            return fail(begin, QStringLiteral("After \\u four hexadecimal digits are expected, as in \\u00b5."));
        *text += QChar(code);
        m_at += 5;
        return true;
    }
    if (m_at >= m_text.size())
        return true;
    const int index = letters.indexOf(c);
    if (index >= 0) {
        *text += QLatin1Char(meanings.at(index));
        ++m_at;
    } else if (m_tree.doubts.size() < mostRemarks) {
        // The character itself is read with what follows.
        m_tree.doubts.append({begin,
                QStringLiteral(
                        "The backslash before %1 is lost, because JSON knows no such escape. For a backslash in the text write two.")
                        .arg(shown(m_text, m_at))});
    }
    return true;
}

bool Reader::readWord(JsonNode* node)
{
    const auto take = [&](const char* word) {
        const int size = int(qstrlen(word));
        if (m_text.mid(m_at, size) != word)
            return false;
        m_at += size;
        return true;
    };
    if (take("null"))
        return true;
    node->boolean = take("true");
    if (!node->boolean && !take("false"))
        return failAtValue();
    node->kind = JsonNode::Boolean;
    return true;
}

bool Reader::readNumber(JsonNode* node)
{
    const int begin = m_at;
    const auto skipDigits = [&] {
        while (isDigit(current()))
            ++m_at;
    };
    if (isAt('-'))
        ++m_at;
    if (isAt('0'))
        ++m_at;
    else
        skipDigits();
    if (isAt('.')) {
        ++m_at;
        skipDigits();
    }
    if (isAt('e') || isAt('E')) {
        ++m_at;
        if (isAt('-') || isAt('+'))
            ++m_at;
        skipDigits();
    }
    node->kind = JsonNode::Number;
    bool isRead = false;
    const QByteArray number = m_text.mid(begin, m_at - begin);
    node->number = number.toDouble(&isRead);
    if (!isRead)
        return fail(begin,
                QStringLiteral("\"%1\" is no number that can be read.").arg(QString::fromLatin1(number.left(40))));
    if (isDigit(current()))
        return fail(begin, QStringLiteral("A number cannot begin with a zero, except 0 itself and 0.5."));
    return true;
}

} // namespace

bool JsonNode::isWholeNumber() const
{
    return kind == Number && std::isfinite(number) && number == std::floor(number);
}

const JsonNode* JsonNode::member(const QString& name) const
{
    const auto it = std::find_if(
            children.crbegin(), children.crend(), [&name](const JsonNode& child) { return child.key == name; });
    return kind == Object && it != children.crend() ? &*it : nullptr;
}

const JsonNode* JsonNode::member(QLatin1String name) const
{
    const auto it = std::find_if(
            children.crbegin(), children.crend(), [name](const JsonNode& child) { return child.key == name; });
    return kind == Object && it != children.crend() ? &*it : nullptr;
}

QString JsonNode::textOf(const char* name) const
{
    const JsonNode* node = member(name);
    return node && node->isText() ? node->text : QString();
}

const JsonNode* JsonNode::at(const QString& pointer) const
{
    const JsonNode* node = this;
    const QStringList words = pointer.split(QLatin1Char('/'), Qt::SkipEmptyParts);
    for (QString word : words) {
        word.replace(QLatin1String("~1"), QLatin1String("/")).replace(QLatin1String("~0"), QLatin1String("~"));
        bool isIndex = false;
        const int index = word.toInt(&isIndex);
        const JsonNode* next = nullptr;
        if (node->isList() && isIndex && index >= 0 && index < int(node->children.size()))
            next = &node->children[size_t(index)];
        else if (node->isObject())
            next = node->member(word);
        if (!next)
            return node;
        node = next;
    }
    return node;
}

JsonTree readJson(const QByteArray& text)
{
    return Reader(text).read();
}

} // namespace uiutils::check
