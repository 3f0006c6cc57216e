#pragma once

#include <QString>

namespace uiutils {

/// What of a text counts when users look for words in it: neither capitals, nor accents and vowel points, nor whether a
/// letter is written as one character, as several or in another width. A name is found on a keyboard without its
/// letters: "Muller" and "MÜLLER" have the form "muller". Marks without which a word is another one stay: voiced kana,
/// and the vowels of Thai and of the scripts of India.
QString searchForm(const QString& text);

} // namespace uiutils
