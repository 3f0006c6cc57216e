#include "core/searchwords_p.h"

#include <algorithm>

namespace uiutils {

namespace {

/// File names of some systems have the mark as a character of its own.
QString composed(const QString& text)
{
    return text.normalized(QString::NormalizationForm_C);
}

} // namespace

SearchWords::SearchWords(const QString& typed)
    : m_words(composed(typed).simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts))
{
}

bool SearchWords::areIn(const QStringList& texts) const
{
    QStringList searched;
    searched.reserve(texts.size());
    std::transform(texts.cbegin(), texts.cend(), std::back_inserter(searched), composed);
    return std::all_of(m_words.cbegin(), m_words.cend(), [&](const QString& word) {
        return std::any_of(searched.cbegin(), searched.cend(),
                [&](const QString& text) { return text.contains(word, Qt::CaseInsensitive); });
    });
}

} // namespace uiutils
