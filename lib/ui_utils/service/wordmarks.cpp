#include "service/wordmarks_p.h"

namespace uiutils {

namespace {

/// What stands for an escape such as "\w".
QString replaced(const QString& escape, bool isInBrackets)
{
    if (escape == QLatin1String("\\w"))
        return isInBrackets ? QStringLiteral("\\w\\p{M}") : QStringLiteral("[\\w\\p{M}]");
    return escape == QLatin1String("\\W") && !isInBrackets ? QStringLiteral("[^\\w\\p{M}]") : escape;
}

/// The length of the opening of the bracket expression at `start`, which may contain a closing bracket as a member.
int lengthOfOpening(const QString& pattern, int start)
{
    int end = start + 1;
    if (pattern.midRef(end).startsWith(QLatin1Char('^')))
        ++end;
    if (pattern.midRef(end).startsWith(QLatin1Char(']')))
        ++end;
    return end - start;
}

} // namespace

QString withWordMarks(const QString& pattern)
{
    if (!pattern.contains(QLatin1String("\\w"), Qt::CaseInsensitive) || pattern.contains(QLatin1String("\\Q")))
        return pattern;
    QString marked;
    bool isInBrackets = false;
    for (int i = 0; i < pattern.size();) {
        int length = 1;
        if (pattern.at(i) == QLatin1Char('\\'))
            length = 2;
        else if (!isInBrackets && pattern.at(i) == QLatin1Char('['))
            length = lengthOfOpening(pattern, i);
        else if (isInBrackets && pattern.midRef(i).startsWith(QLatin1String("[:")))
            length = qMax(1, pattern.indexOf(QLatin1String(":]"), i) + 2 - i);
        const QString token = pattern.mid(i, length);
        if (!isInBrackets && token.startsWith(QLatin1Char('[')))
            isInBrackets = true;
        else if (isInBrackets && token == QLatin1String("]"))
            isInBrackets = false;
        marked += replaced(token, isInBrackets);
        i += length;
    }
    return marked;
}

} // namespace uiutils
