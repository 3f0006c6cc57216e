#include "base/xmlname_p.h"

#include "base/xmltext_p.h"

#include <algorithm>

namespace uiutils {

namespace {

struct Range
{
    ushort first;
    ushort last;
};

/// Letters that every edition of XML 1.0 accepts in a name: Latin, Greek, Cyrillic, Hebrew, Arabic, Devanagari, Thai,
/// kana, Han and Hangul. Later editions accept more, but readers of the earlier ones are still in use.
constexpr Range letters[] = {{0xc0, 0xd6}, {0xd8, 0xf6}, {0xf8, 0x131}, {0x134, 0x13e}, {0x141, 0x148}, {0x14a, 0x17e},
        {0x386, 0x386}, {0x388, 0x38a}, {0x38c, 0x38c}, {0x38e, 0x3a1}, {0x3a3, 0x3ce}, {0x401, 0x40c}, {0x40e, 0x44f},
        {0x451, 0x45c}, {0x45e, 0x481}, {0x490, 0x4c4}, {0x5d0, 0x5ea}, {0x621, 0x63a}, {0x641, 0x64a}, {0x905, 0x939},
        {0xe01, 0xe2e}, {0x3041, 0x3094}, {0x30a1, 0x30fa}, {0x4e00, 0x9fa5}, {0xac00, 0xd7a3}};

bool isNameStart(QChar character)
{
    const ushort c = character.unicode();
    if (c < 0x80)
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
    return std::any_of(std::begin(letters), std::end(letters),
            [c](const Range& range) { return range.first <= c && c <= range.last; });
}

bool isNameCharacter(QChar c)
{
    return isNameStart(c) || (c >= QLatin1Char('0') && c <= QLatin1Char('9')) || c == QLatin1Char('-')
            || c == QLatin1Char('.');
}

bool isReserved(const QString& name)
{
    return name.startsWith(QLatin1String("xml"), Qt::CaseInsensitive);
}

bool isXmlName(const QString& name)
{
    return isNameStart(name.at(0)) && !isReserved(name) && std::all_of(name.cbegin(), name.cend(), isNameCharacter);
}

} // namespace

QString xmlName(const QString& name)
{
    if (name.isEmpty() || isXmlName(name))
        return name;
    QString result;
    result.reserve(name.size() + 1);
    if (isReserved(name) || (!isNameStart(name.at(0)) && isNameCharacter(name.at(0))))
        result += QLatin1Char('_');
    for (const QChar c : name)
        result += isNameCharacter(c) ? c : QLatin1Char('_');
    return result;
}

QString xmlComment(const QString& text)
{
    QString comment = markupText(text);
    if (!comment.contains(QLatin1Char('-')))
        return comment;
    // Twice, because the hyphen that ends one pair begins the next.
    comment.replace(QLatin1String("--"), QLatin1String("- -")).replace(QLatin1String("--"), QLatin1String("- -"));
    if (comment.endsWith(QLatin1Char('-')))
        comment += QLatin1Char(' ');
    return comment;
}

} // namespace uiutils
