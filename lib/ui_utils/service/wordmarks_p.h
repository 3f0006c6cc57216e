#pragma once

#include <QString>

namespace uiutils {

/// `pattern` with marks beside the letters of every "\w": PCRE2 takes letters and digits alone, and texts in Thai or
/// Hindi, and decomposed letters anywhere, have marks among them. Unchanged when it quotes by "\Q".
QString withWordMarks(const QString& pattern);

} // namespace uiutils
