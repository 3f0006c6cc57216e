#pragma once

#include "core/status.h"

namespace uiutils::demo {

/// Share of the limit by which a value has to keep it to pass; a value closer to the limit is marginal.
constexpr double marginalShare = 0.2;

/// A bound that a measured value has to keep.
struct Limit
{
    enum Kind { AtMost, AtLeast };

    Kind kind = AtMost;
    /// In the unit of the values; 0 or more.
    double bound = 0;

    /// Fail when the value misses the bound, Marginal when it keeps it by less than the marginal share.
    Status::Code judge(double value) const;
};

} // namespace uiutils::demo
