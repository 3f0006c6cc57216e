#pragma once

#include <functional>

namespace bench {

/// What `run` answers in a fresh child process, which starts from the same state however often it is called;
/// NaN when there is no answer. The child ends without static destructors.
double inChild(const std::function<double()>& run);

} // namespace bench
