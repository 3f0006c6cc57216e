#pragma once

#include <QString>

namespace uiutils {

/// `pattern` with "\w" extended by marks: PCRE2 matches only letters and digits, but texts in Thai or Hindi, and
/// decomposed letters in any language, contain marks. A pattern that quotes by "\Q" is returned unchanged.
QString withWordMarks(const QString& pattern);

} // namespace uiutils
