#pragma once

#include <functional>

namespace bench {

/// Whether an item has the value that so many changes gave it.
using IsRight = std::function<bool(int item, int changes)>;

/// Answers with the CPU milliseconds of this process when the last of the changes has arrived, or has not for long, and
/// with 1 when all values and what `areBindingsRight` asks are right then.
void answerWhenSettled(int changes, const IsRight& isRight, const std::function<bool()>& areBindingsRight);

} // namespace bench
