#pragma once

namespace uiutils::demo {

/// How a value stands to its limit; the numbers are the status codes of report cells.
enum Status {
    StatusNone = 0,
    StatusPass = 16,
    StatusMarginal = 32,
    StatusFail = 64,
};

/// Share of the limit by which a value has to keep it to pass; a value closer to the limit is marginal.
constexpr double marginalShare = 0.2;

/// A bound that a measured value has to keep.
struct Limit
{
    enum Kind { AtMost, AtLeast };

    Kind kind = AtMost;
    /// In the unit of the values; 0 or more.
    double bound = 0;

    /// StatusFail when the value misses the bound, StatusMarginal when it keeps it by less than the marginal
    /// share.
    Status judge(double value) const;
};

} // namespace uiutils::demo
