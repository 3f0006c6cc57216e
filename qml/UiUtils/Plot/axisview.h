#pragma once

#include "writers/plots/interval_p.h"

namespace uiutils {

/// The values that an axis shows at present, and where they are along it. Unlike an AxisScale, which fits its data, it
/// also says where values beyond its ends are.
class AxisView
{
public:
    AxisView() = default;
    /// Whatever the interval is, the view is a proper one: not empty, positive if it is logarithmic.
    AxisView(Interval values, bool isLogarithmic);

    double low() const { return m_low; }
    double high() const { return m_high; }
    Interval values() const { return {m_low, m_high}; }
    bool isLogarithmic() const { return m_isLogarithmic; }

    /// 0 at the low end, 1 at the high one; within a million for values beyond. NaN for a value that the axis does not
    /// have.
    double position(double value) const;
    /// The value at a position.
    double value(double position) const;

    /// What is shown when distances become `factor` times as long and what is at the position `at` stays there.
    AxisView zoomed(double factor, double at) const;
    /// What is shown when the values move up the axis by that part of its length.
    AxisView panned(double by) const;

    bool operator==(const AxisView& other) const
    {
        return m_low == other.m_low && m_high == other.m_high && m_isLogarithmic == other.m_isLogarithmic;
    }
    bool operator!=(const AxisView& other) const { return !(*this == other); }

private:
    AxisView between(double begin, double end) const;
    double onScale(double value) const;
    double offScale(double place) const;

    double m_low = 0;
    double m_high = 1;
    bool m_isLogarithmic = false;
};

} // namespace uiutils
