#pragma once

#include <QString>

namespace uiutils {

/// The family that shows a character in place of one that cannot be embedded: the first whose regular font may be
/// embedded and has the character. Families that claim its writing system come first, then all; those without serifs
/// first, those of fixed pitch last. Empty if there is none.
///
/// A family is opened when it is its turn for the first time, which takes a millisecond, and not again in the process
/// unless it is chosen. Ask only for characters whose font was refused.
QString embeddableFamily(uint character);

} // namespace uiutils
