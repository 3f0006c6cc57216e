#include "service/applicability_p.h"

#include <QRegularExpression>
#include <QSet>
#include <QVector>

namespace uiutils {

namespace {

struct Token
{
    enum Kind {
        Name,
        Literal,
        Operator,
    };
    Kind kind;
    QString text;
};

/// As QML reads names. Which characters it accepts depends on the Unicode version of Qt, which is older than that of
/// regular expressions.
bool beginsName(uint character)
{
    switch (QChar::category(character)) {
    case QChar::Letter_Uppercase:
    case QChar::Letter_Lowercase:
    case QChar::Letter_Titlecase:
    case QChar::Letter_Modifier:
    case QChar::Letter_Other:
    case QChar::Number_Letter:
        return true;
    default:
        return character == '_' || character == '$';
    }
}

bool continuesName(uint character)
{
    switch (QChar::category(character)) {
    case QChar::Mark_NonSpacing:
    case QChar::Mark_SpacingCombining:
    case QChar::Number_DecimalDigit:
    case QChar::Punctuation_Connector:
        return true;
    default:
        return beginsName(character);
    }
}

/// Where the name that begins at a position ends; the position itself when none does.
int nameEnd(const QString& text, int at)
{
    int end = at;
    while (end < text.size()) {
        const bool isPair = end + 1 < text.size() && text.at(end).isHighSurrogate();
        const uint character = isPair ? QChar::surrogateToUcs4(text.at(end), text.at(end + 1)) : text.at(end).unicode();
        if (!(end == at ? beginsName(character) : continuesName(character)))
            break;
        end += isPair ? 2 : 1;
    }
    return end;
}

std::optional<Token> tokenAt(const QString& text, int at)
{
    static const QRegularExpression others(QStringLiteral(
            R"(((?:0[xX][0-9A-Fa-f]+|(?:(?:0|[1-9]\d*)(?:\.\d*)?|\.\d+)(?:[eE][+-]?\d+)?)(?![\w$.]))"
            R"(|"(?:[^"\\\p{Cc}\x{2028}\x{2029}]|\\[\\'"nt])*"|'(?:[^'\\\p{Cc}\x{2028}\x{2029}]|\\[\\'"nt])*'))"
            R"(|(===|!==|==|!=|<=|>=|&&|\|\||<<|>>>|>>|\+(?!\+)|-(?!-)|[*/%<>!~&|^?:.,()\[\]]))"));
    const int end = nameEnd(text, at);
    if (end > at)
        return Token {Token::Name, text.mid(at, end - at)};
    const QRegularExpressionMatch match
            = others.match(text, at, QRegularExpression::NormalMatch, QRegularExpression::AnchoredMatchOption);
    if (!match.hasMatch())
        return std::nullopt;
    return Token {match.capturedLength(1) > 0 ? Token::Literal : Token::Operator, match.captured()};
}

std::optional<QVector<Token>> tokens(const QString& expression, QString* problem)
{
    QVector<Token> list;
    for (int at = 0; at < expression.size();) {
        if (expression.at(at).isSpace()) {
            ++at;
            continue;
        }
        const std::optional<Token> token = tokenAt(expression, at);
        if (!token) {
            *problem = QStringLiteral("\"%1\" is not allowed here").arg(expression.mid(at).trimmed().left(20));
            return std::nullopt;
        }
        list.append(*token);
        at += token->text.size();
    }
    return list;
}

bool isKind(const QString& word)
{
    return word == QLatin1String("cfg") || word == QLatin1String("res");
}

/// A name as QML knows it, written out by the service itself.
bool isItemName(const QString& name)
{
    static const QRegularExpression itemName(QStringLiteral("_(cfg|res|act)_."));
    return itemName.match(name).hasMatch();
}

bool isLiteralName(const QString& name)
{
    static const QSet<QString> names {QStringLiteral("true"), QStringLiteral("false"), QStringLiteral("null"),
            QStringLiteral("undefined"), QStringLiteral("NaN"), QStringLiteral("Infinity")};
    return names.contains(name);
}

/// All but the objects and `applicable`: items that read each other's would do so in circles, or so often that the
/// screen freezes.
bool isProperty(const QString& name)
{
    static const QSet<QString> names {QStringLiteral("id"), QStringLiteral("name"), QStringLiteral("type"),
            QStringLiteral("inputType"), QStringLiteral("precision"), QStringLiteral("label"), QStringLiteral("regex"),
            QStringLiteral("readOnly"), QStringLiteral("enums"), QStringLiteral("value"), QStringLiteral("isReady"),
            QStringLiteral("qualityCode"), QStringLiteral("error"), QStringLiteral("valueString"),
            QStringLiteral("valueStringNoUnits"), QStringLiteral("unitString"), QStringLiteral("arraySelection"),
            QStringLiteral("arraySelectionString"), QStringLiteral("enumCount"), QStringLiteral("valueCount"),
            QStringLiteral("minRange"), QStringLiteral("maxRange"), QStringLiteral("rangeDescription")};
    return names.contains(name);
}

bool isAccessor(const QString& name)
{
    static const QSet<QString> names {QStringLiteral("variantAt"), QStringLiteral("at"),
            QStringLiteral("getArrayValue"), QStringLiteral("getProperty"), QStringLiteral("enumLabel"),
            QStringLiteral("enumLabelForValue"), QStringLiteral("enumValue"), QStringLiteral("enumIndex"),
            QStringLiteral("applicableAt")};
    return names.contains(name);
}

/// Walks the tokens once. It accepts only what is known to be harmless, and only well-formed expressions, because the
/// engine does not report others to its caller.
class Translator
{
public:
    Translator(const QVector<Token>& tokens, const QString& tag)
        : m_tokens(tokens)
        , m_tag(tag)
    {
    }

    std::optional<QString> run(QString* problem)
    {
        while (m_at < m_tokens.size() && m_problem.isEmpty())
            translateNext();
        if (m_problem.isEmpty() && (m_wantsOperand || !m_open.isEmpty()))
            m_problem = QStringLiteral("the expression is not complete");
        if (m_problem.isEmpty())
            return m_result;
        *problem = m_problem;
        return std::nullopt;
    }

private:
    void translateNext()
    {
        const Token& token = m_tokens.at(m_at);
        if (token.kind == Token::Operator)
            translateOperator(token.text);
        else if (!m_wantsOperand)
            reject(token.text);
        else if (token.kind == Token::Name)
            translateName(token.text);
        else
            takeOperand();
    }

    /// An item is written as "cfg.mode", "module.cfg.mode" or by the name that QML knows it by.
    void translateName(const QString& name)
    {
        if (++m_names > mostNames) {
            m_problem = QStringLiteral("the expression has more than %1 names").arg(mostNames);
        } else if (isKind(name) && isName(m_at + 2) && isOperator(m_at + 1, '.')) {
            takeItem(m_tag, name, 3);
        } else if (isKind(nameAt(m_at + 2)) && isOperator(m_at + 1, '.') && isOperator(m_at + 3, '.')
                && isName(m_at + 4)) {
            takeItem(name, nameAt(m_at + 2), 5);
        } else if (isItemName(name)) {
            takeOperand();
            translateMember();
        } else if (isLiteralName(name)) {
            takeOperand();
        } else {
            reject(name);
        }
    }

    /// `count` tokens that name the item, its own name the last.
    void takeItem(const QString& tag, const QString& kind, int count)
    {
        if (tag.isEmpty() || nameEnd(tag, 0) != tag.size())
            return reject(tag);
        m_result += tag + QLatin1Char('_') + kind + QLatin1Char('_') + nameAt(m_at + count - 1);
        m_at += count;
        m_wantsOperand = false;
        translateMember();
    }

    /// What follows an item's name: a property, perhaps members of its value, or an accessor; else the value is meant.
    void translateMember()
    {
        if (!isOperator(m_at, '.')) {
            m_result += QLatin1String(".value");
            return;
        }
        const QString member = nameAt(m_at + 1);
        if (isAccessor(member) && isOperator(m_at + 2, '(')) {
            take(3);
            open(Call);
        } else if (isProperty(member)) {
            take(2);
            while (isOperator(m_at, '.') && isName(m_at + 1))
                take(2);
        } else {
            reject(member);
        }
    }

    void translateOperator(const QString& text)
    {
        if (text == QLatin1String("("))
            translateBracket();
        else if (text == QLatin1String(")"))
            close(text);
        else if (text == QLatin1String("["))
            translateIndex();
        else if (text == QLatin1String(".") || text == QLatin1String("]"))
            reject(text);
        else if (m_wantsOperand)
            translateSign(text);
        else
            translateInfix(text);
    }

    void translateBracket()
    {
        if (!m_wantsOperand)
            return reject(QStringLiteral("("));
        take();
        open(Group);
    }

    /// An element: a plain number can select nothing else.
    void translateIndex()
    {
        if (m_wantsOperand || !isNumber(m_at + 1) || !isOperator(m_at + 2, ']'))
            return reject(QStringLiteral("["));
        take(3);
    }

    void translateSign(const QString& text)
    {
        static const QSet<QString> signs {
                QStringLiteral("!"), QStringLiteral("~"), QStringLiteral("+"), QStringLiteral("-")};
        if (!signs.contains(text))
            return reject(text);
        take();
    }

    void translateInfix(const QString& text)
    {
        if (text == QLatin1String("!") || text == QLatin1String("~"))
            return reject(text);
        if (text == QLatin1String(":"))
            return close(text);
        if (text == QLatin1String(",") && (m_open.isEmpty() || m_open.constLast() != Call))
            return reject(text);
        take();
        m_wantsOperand = true;
        if (text == QLatin1String("?"))
            open(Condition);
    }

    enum Opened {
        Group,
        Call,
        Condition,
    };

    void open(Opened what)
    {
        m_open.append(what);
        m_wantsOperand = true;
    }

    /// Ends what a bracket or a question mark began.
    void close(const QString& text)
    {
        const bool isCondition = text == QLatin1String(":");
        if (m_wantsOperand || m_open.isEmpty() || (m_open.constLast() == Condition) != isCondition)
            return reject(text);
        m_open.removeLast();
        take();
        m_wantsOperand = isCondition;
    }

    bool isName(int at) const { return at < m_tokens.size() && m_tokens.at(at).kind == Token::Name; }
    QString nameAt(int at) const { return isName(at) ? m_tokens.at(at).text : QString(); }

    bool isNumber(int at) const
    {
        return at < m_tokens.size() && m_tokens.at(at).kind == Token::Literal && m_tokens.at(at).text.at(0).isDigit();
    }

    bool isOperator(int at, char c) const
    {
        return at < m_tokens.size() && m_tokens.at(at).kind == Token::Operator
                && m_tokens.at(at).text == QLatin1Char(c);
    }

    void takeOperand()
    {
        take();
        m_wantsOperand = false;
    }

    void take(int count = 1)
    {
        for (int end = m_at + count; m_at < end; ++m_at) {
            const Token& token = m_tokens.at(m_at);
            // Two operators that were separate must not become one.
            const bool isSpaced = token.kind == Token::Operator && token.text != QLatin1String(".");
            m_result += isSpaced ? QLatin1Char(' ') + token.text + QLatin1Char(' ') : token.text;
        }
    }

    void reject(const QString& text) { m_problem = QStringLiteral("\"%1\" is not allowed here").arg(text); }

    /// Far more than anybody compares. Each may be a long text that is copied.
    static constexpr int mostNames = 64;

    const QVector<Token>& m_tokens;
    const QString m_tag;
    int m_names = 0;
    int m_at = 0;
    bool m_wantsOperand = true;
    QVector<Opened> m_open;
    QString m_result;
    QString m_problem;
};

} // namespace

bool isQmlName(const QString& text)
{
    return !text.isEmpty() && nameEnd(text, 0) == text.size();
}

std::optional<QString> translatedApplicability(const QString& expression, const QString& tag, QString* problem)
{
    // Far longer than anybody writes. The parser of the engine recurses as deep as the brackets are nested.
    constexpr int longest = 2000;
    if (expression.size() > longest) {
        *problem = QStringLiteral("the expression is longer than %1 characters").arg(longest);
        return std::nullopt;
    }
    const std::optional<QVector<Token>> list = tokens(expression, problem);
    if (!list)
        return std::nullopt;
    return Translator(*list, tag).run(problem);
}

} // namespace uiutils
