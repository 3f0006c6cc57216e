#include "core/searchwords_p.h"

#include "base/searchform_p.h"

#include <algorithm>

namespace uiutils {

SearchWords::SearchWords(const QString& typed)
    : m_words(searchForm(typed).simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts))
{
}

bool SearchWords::areIn(const QStringList& texts) const
{
    QStringList searched;
    searched.reserve(texts.size());
    std::transform(texts.cbegin(), texts.cend(), std::back_inserter(searched), searchForm);
    return std::all_of(m_words.cbegin(), m_words.cend(), [&](const QString& word) {
        return std::any_of(
                searched.cbegin(), searched.cend(), [&](const QString& text) { return text.contains(word); });
    });
}

} // namespace uiutils
