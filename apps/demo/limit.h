#pragma once

#include "core/status.h"

namespace uiutils::demo {

/// The margin, as a share of the limit, with which a value must meet the limit to pass; with less it is marginal.
constexpr double marginalShare = 0.2;

/// A limit for a measured value.
struct Limit
{
    enum Kind { AtMost, AtLeast };

    Kind kind = AtMost;
    /// In the unit of the values; 0 or more.
    double bound = 0;

    /// Fail when the value does not meet the limit, Marginal when it meets it with less than the marginal share.
    Status::Code judge(double value) const;
};

} // namespace uiutils::demo
