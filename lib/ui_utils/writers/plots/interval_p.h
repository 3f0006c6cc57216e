#pragma once

#include <algorithm>
#include <cmath>

namespace uiutils {

/// The values from `low` to `high`; empty until a value is included.
struct Interval
{
    double low = 1;
    double high = 0;

    bool isEmpty() const { return low > high; }
    double extent() const { return isEmpty() ? 0 : high - low; }
    /// Widens the interval to contain `value`; one that is not finite is left out.
    void include(double value)
    {
        if (!std::isfinite(value))
            return;
        const bool wasEmpty = isEmpty();
        low = wasEmpty ? value : std::min(low, value);
        high = wasEmpty ? value : std::max(high, value);
    }
    void include(const Interval& other)
    {
        if (!other.isEmpty()) {
            include(other.low);
            include(other.high);
        }
    }
};

} // namespace uiutils
