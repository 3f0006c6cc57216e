#include "base/xmltext_p.h"

#include <algorithm>

namespace uiutils {

namespace {

bool isControl(ushort c)
{
    return (c < 0x20 && c != '\t' && c != '\n' && c != '\r') || (c >= 0x7f && c < 0xa0);
}

/// Whether `c` needs a closer look; true for every surrogate, paired or not.
bool isSuspicious(QChar character)
{
    const ushort c = character.unicode();
    return isControl(c) || (c >= 0xd800 && (c < 0xe000 || c >= 0xfffe));
}

} // namespace

QString markupText(const QString& text)
{
    const auto first = std::find_if(text.cbegin(), text.cend(), isSuspicious);
    if (first == text.cend())
        return text;

    QString clean = text.left(int(first - text.cbegin()));
    clean.reserve(text.size());
    for (int i = clean.size(); i < text.size(); ++i) {
        const QChar c = text.at(i);
        const bool isPair = c.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
        if (isPair) {
            clean += c;
            clean += text.at(++i);
        } else if (c.isSurrogate() || c.unicode() >= 0xfffe) {
            clean += QChar(QChar::ReplacementCharacter);
        } else if (!isControl(c.unicode())) {
            clean += c;
        }
    }
    return clean;
}

} // namespace uiutils
