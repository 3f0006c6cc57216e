#include "check/services/regexcheck.h"

#include <QStringList>

#include <algorithm>

namespace uiutils::check {

namespace {

/// An expression without nested repetition needs a few thousand steps for a text of forty characters.
constexpr int mostSteps = 100000;
constexpr int textLength = 40;
/// Of which texts are made that an expression may stumble over.
constexpr int mostSamples = 8;

/// Whether it may take long at all: it repeats a group, or several things.
bool isSuspect(const QString& pattern)
{
    static const QRegularExpression repetition(QStringLiteral(R"(\\.|\)?(?:[*+]|\{\d+,\d*\}))"));
    int count = 0;
    for (auto it = repetition.globalMatch(pattern); it.hasNext();) {
        const QString found = it.next().captured();
        count += found.startsWith(QLatin1Char('\\')) ? 0 : found.startsWith(QLatin1Char(')')) ? 2 : 1;
    }
    return count > 1;
}

/// Characters that occur in the expression, or are meant by it.
QString samples(const QString& pattern)
{
    QString characters;
    const auto add = [&](QChar character) {
        if (character.isPrint() && !characters.contains(character) && characters.size() < mostSamples)
            characters += character;
    };
    for (int i = 0; i < pattern.size(); ++i) {
        const QChar next = i + 1 < pattern.size() ? pattern.at(i + 1) : QChar();
        if (pattern.at(i) != QLatin1Char('\\')) {
            if (pattern.at(i).isLetterOrNumber() || QStringLiteral("_- ,;:@/").contains(pattern.at(i)))
                add(pattern.at(i));
            continue;
        }
        ++i;
        if (next == QLatin1Char('s'))
            add(QLatin1Char(' '));
        else if (next == QLatin1Char('d'))
            add(QLatin1Char('1'));
        else if (!next.isLetterOrNumber())
            add(next);
    }
    add(QLatin1Char('a'));
    add(QLatin1Char('1'));
    return characters;
}

QStringList trialTexts(const QString& pattern)
{
    const QString characters = samples(pattern);
    QStringList ends {QStringLiteral("\n\x01")};
    for (const QChar character : characters) {
        if (!character.isLetterOrNumber())
            ends += character;
        // The engine looks first whether the text has what must come last.
        ends += character + ends.constFirst();
    }
    QStringList texts;
    for (const QString& end : qAsConst(ends)) {
        for (const QChar first : characters) {
            for (const QChar second : characters)
                texts += (QString(first) + second).repeated(textLength / 2) + end;
        }
    }
    return texts;
}

/// Tried, not guessed: the engine itself counts its steps, so that the answer does not depend on the machine.
bool isCostly(const QString& pattern)
{
    if (!isSuspect(pattern))
        return false;
    const QRegularExpression limited(
            QStringLiteral("(*LIMIT_MATCH=%1)").arg(mostSteps) + QRegularExpression::anchoredPattern(pattern));
    if (!limited.isValid())
        return false;
    const QStringList texts = trialTexts(pattern);
    return std::any_of(
            texts.cbegin(), texts.cend(), [&limited](const QString& text) { return !limited.match(text).isValid(); });
}

} // namespace

const RegexFacts& RegexCheck::facts(const QString& pattern)
{
    const auto known = m_known.constFind(pattern);
    if (known != m_known.cend())
        return *known;
    RegexFacts facts;
    const QRegularExpression alone(pattern);
    facts.form = QRegularExpression(QRegularExpression::anchoredPattern(pattern));
    if (!alone.isValid())
        facts.problem
                = QStringLiteral("%1 at character %2").arg(alone.errorString()).arg(alone.patternErrorOffset() + 1);
    else if (!facts.form.isValid())
        facts.problem = QStringLiteral("it is valid only with nothing around it");
    else
        facts.isCostly = isCostly(pattern);
    return *m_known.insert(pattern, facts);
}

} // namespace uiutils::check
