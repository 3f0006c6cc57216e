#include "check/services/jsonwords.h"

#include "check/wording.h"
#include "common/nearest.h"

#include <QRegularExpression>

#include <algorithm>

namespace uiutils::check {

namespace {

/// The word of an id, or of a name in an expression, that tells it from others.
QString lastWord(const QString& name)
{
    static const QRegularExpression separators(QStringLiteral("[:.]+"));
    const QStringList words = name.split(separators, Qt::SkipEmptyParts);
    return words.value(words.size() - 1).toLower();
}

/// Whether two thirds of the letters are the same.
bool isAlike(const QString& a, const QString& b)
{
    QString rest = a;
    int common = 0;
    for (const QChar character : b) {
        const int at = rest.indexOf(character);
        common += at >= 0 ? 1 : 0;
        if (at >= 0)
            rest.remove(at, 1);
    }
    return 3 * common > 2 * std::max(a.size(), b.size()) || (a.size() > 5 && b.contains(a));
}

/// The same word with other capitals, after another one, or cut, is likelier than all others.
QStringList likely(const QString& wanted, const QStringList& known)
{
    constexpr int shortest = 3;
    const QString word = lastWord(wanted);
    QStringList same;
    QStringList cut;
    for (const QString& name : known) {
        if (name.compare(wanted, Qt::CaseInsensitive) == 0 || lastWord(name) == word)
            same += name;
        else if (std::min(name.size(), wanted.size()) >= shortest
                && (name.startsWith(wanted, Qt::CaseInsensitive) || wanted.startsWith(name, Qt::CaseInsensitive)))
            cut += name;
    }
    if (!same.isEmpty() || !cut.isEmpty())
        return (same.isEmpty() ? cut : same).mid(0, shortest);
    QStringList names;
    const QStringList near = apps::nearest(wanted, known);
    for (const QString& name : near) {
        if (isAlike(word, lastWord(name)))
            names += name;
    }
    return names;
}

} // namespace

QString quoted(const QString& text)
{
    constexpr int longest = 100;
    QString shown = text.size() > longest ? text.left(longest) + QChar(0x2026) : text;
    for (QChar& character : shown) {
        if (!character.isPrint() && !character.isSurrogate())
            character = QLatin1Char(' ');
    }
    return QLatin1Char('"') + shown + QLatin1Char('"');
}

QString shownNumber(double number)
{
    return QString::number(number, 'g', 15);
}

QString shownValue(const JsonNode& value)
{
    switch (value.kind) {
    case JsonNode::Null:
        return QStringLiteral("null");
    case JsonNode::Boolean:
        return value.boolean ? QStringLiteral("true") : QStringLiteral("false");
    case JsonNode::Number:
        return shownNumber(value.number);
    case JsonNode::Text:
        return QStringLiteral("the text ") + quoted(value.text);
    case JsonNode::List:
        return QStringLiteral("a list");
    case JsonNode::Object:
        return QStringLiteral("an object");
    }
    return QString();
}

QString didYouMean(const QString& wanted, const QStringList& known)
{
    QStringList names;
    const QStringList near = likely(wanted, known);
    for (const QString& name : near)
        names += quoted(name);
    return proposal(names);
}

} // namespace uiutils::check
