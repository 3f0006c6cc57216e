#include "base/searchform_p.h"

#include <algorithm>

namespace uiutils {

namespace {

bool isPlainLetter(QChar letter)
{
    return letter.unicode() < 0x80;
}

bool isPlain(const QString& text)
{
    return std::all_of(text.cbegin(), text.cend(), isPlainLetter);
}

bool isOmitted(QChar mark)
{
    constexpr char16_t kanaVoiced = 0x3099;
    constexpr char16_t kanaHalfVoiced = 0x309a;
    if (mark.category() != QChar::Mark_NonSpacing || mark == QChar(kanaVoiced) || mark == QChar(kanaHalfVoiced))
        return false;
    // Accents and the vowel points of Arabic belong to no script.
    return mark.script() == QChar::Script_Inherited || mark.script() == QChar::Script_Hebrew;
}

/// Letters that Unicode does not make of a plain one and a mark, as keyboards without them write them. Empty for
/// others.
QString spelled(QChar letter)
{
    switch (letter.unicode()) {
    case 0xdf: // sharp s
        return QStringLiteral("ss");
    case 0xe6: // ae
        return QStringLiteral("ae");
    case 0xf8: // o with stroke
        return QStringLiteral("o");
    case 0x111: // d with stroke
        return QStringLiteral("d");
    case 0x131: // dotless i
        return QStringLiteral("i");
    case 0x142: // l with stroke
        return QStringLiteral("l");
    case 0x153: // oe
        return QStringLiteral("oe");
    default:
        return QString();
    }
}

} // namespace

QString searchForm(const QString& text)
{
    if (isPlain(text))
        return text.toLower();
    const QString folded = text.normalized(QString::NormalizationForm_KD).toCaseFolded();
    QString form;
    form.reserve(folded.size());
    for (const QChar letter : folded) {
        const QString spelling = isPlainLetter(letter) ? QString() : spelled(letter);
        if (!spelling.isEmpty())
            form += spelling;
        else if (isPlainLetter(letter) || !isOmitted(letter))
            form += letter;
    }
    // A letter with a mark that stays is not found by the letter alone.
    return isPlain(form) ? form : form.normalized(QString::NormalizationForm_C);
}

} // namespace uiutils
