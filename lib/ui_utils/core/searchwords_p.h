#pragma once

#include <QString>
#include <QStringList>

namespace uiutils {

/// What a user types to find rows of a list: words between spaces, each of which has to be found, wherever it is, in the
/// form of searchForm().
class SearchWords
{
public:
    explicit SearchWords(const QString& typed = QString());

    /// Without words everything is found.
    bool isEmpty() const { return m_words.isEmpty(); }
    /// Whether each word is in one of the texts.
    bool areIn(const QStringList& texts) const;

private:
    QStringList m_words;
};

} // namespace uiutils
