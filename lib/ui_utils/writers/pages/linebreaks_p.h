#pragma once

#include <QStringView>

/// Where lines may end: what belongs together stays together, and a word that no line holds is torn where it hurts
/// least.
namespace uiutils {

/// Whether a line may end at the blank at `at`. It may not between a number and its unit, a sign and its number, or the
/// two ends of a range.
bool isLineBreak(QStringView text, int at);

/// Whether a word may be torn between `at - 1` and `at`: after a separator such as "/" that is not part of a number.
bool isSeam(QStringView text, int at);

/// Where a line ends that begins at `begin` and has no break up to `end`, the end of what fits: at a blank, if there is
/// one, else at the last seam, where a capital letter follows a small one (unless that wastes half a line), between
/// the parts of a number, or at `end`. Always after `begin`.
int tearIn(QStringView text, int begin, int end);

} // namespace uiutils
