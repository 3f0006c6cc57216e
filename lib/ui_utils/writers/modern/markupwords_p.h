#pragma once

#include <QLatin1String>
#include <QString>

namespace uiutils {

/// What a page says, as markup that is both HTML and well-formed XML. Whatever a text contains, it stays text. Line
/// ends of every kind become line feeds.

/// In letters: what a long word is broken into. A column is never wider than this against its will; two of them fit on
/// a phone.
constexpr int longestPiece = 18;

/// Appends ` name="value"`.
void appendAttribute(QString& page, QLatin1String name, const QString& value);

/// Appends the text alone, for elements that hold nothing else.
void appendText(QString& page, const QString& text);

/// Appends the text with places where long words may break, separators first. In a text from right to left, a number
/// keeps its sign and its unit on the sides where they were written.
void appendWords(QString& page, const QString& text);

/// Appends the words as a value of their own, whose direction changes nothing around it.
void appendValue(QString& page, const QString& text);

} // namespace uiutils
