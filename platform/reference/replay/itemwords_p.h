#pragma once

#include <QString>

namespace kiv::replay {

// The words for kinds of items, which recordings share with service files.

/// The word for a type code of an item, such as "doubleARRAY"; empty for a code without a word.
QString typeWord(unsigned type);

/// The word for a quality; "none" for a code without a word.
QString qualityWord(int quality);
/// The quality of a word. Returns false when no quality has it.
bool readQuality(const QString& word, int* quality);

} // namespace kiv::replay
