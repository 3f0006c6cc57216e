#include "axisview.h"

#include <QtMath>

namespace uiutils {

namespace {

// Below the limits of a double, so that no difference in this file overflows.
constexpr double largest = 1e300;
constexpr double smallest = 1e-300;
// An extent that is smaller, relative to its own values, is lost in their rounding, and has no ticks.
constexpr double finest = 2e-10;
// Of a logarithmic axis whose low end is not positive.
constexpr double decadesBelow = 3;
// Farther away nothing can be distinguished, and painters lose their way.
constexpr double farthest = 1e6;

Interval linearValues(Interval values)
{
    if (values.isEmpty())
        return {0, 1};
    const double low = qBound(-largest, values.low, largest);
    const double high = qBound(-largest, values.high, largest);
    const double magnitude = std::max(std::abs(low), std::abs(high));
    if (high - low > std::max(magnitude * finest, smallest))
        return {low, high};
    const double pad = magnitude < smallest ? 1 : magnitude * 0.05;
    return {low - pad, high + pad};
}

Interval positiveValues(Interval values)
{
    if (values.isEmpty() || !(values.high > 0))
        return {1, 10};
    const double high = qBound(smallest, values.high, largest);
    const double wanted = values.low > 0 ? values.low : high * std::pow(10, -decadesBelow);
    const double low = qBound(smallest, wanted, high);
    return high > low * (1 + 1e-6) ? Interval {low, high} : Interval {low / 1.05, high * 1.05};
}

} // namespace

AxisView::AxisView(Interval values, bool isLogarithmic)
    : m_isLogarithmic(isLogarithmic)
{
    const Interval proper = isLogarithmic ? positiveValues(values) : linearValues(values);
    m_low = proper.low;
    m_high = proper.high;
}

double AxisView::onScale(double value) const
{
    const double bounded = qBound(-largest, value, largest);
    return m_isLogarithmic ? std::log10(bounded) : bounded;
}

double AxisView::offScale(double place) const
{
    return m_isLogarithmic ? std::pow(10, place) : place;
}

double AxisView::position(double value) const
{
    if (!std::isfinite(value) || (m_isLogarithmic && value <= 0))
        return qQNaN();
    const double first = onScale(m_low);
    return qBound(-farthest, (onScale(value) - first) / (onScale(m_high) - first), farthest);
}

double AxisView::value(double position) const
{
    const double first = onScale(m_low);
    return offScale(first + position * (onScale(m_high) - first));
}

/// The same view where doubles have no such interval, or too few values in it.
AxisView AxisView::between(double begin, double end) const
{
    const Interval values {value(begin), value(end)};
    const AxisView view(values, m_isLogarithmic);
    return view.low() == values.low && view.high() == values.high ? view : *this;
}

AxisView AxisView::zoomed(double factor, double at) const
{
    if (!(factor > 0) || !std::isfinite(factor) || !std::isfinite(at))
        return *this;
    return between(at - at / factor, at + (1 - at) / factor);
}

AxisView AxisView::panned(double by) const
{
    return std::isfinite(by) ? between(-by, 1 - by) : *this;
}

} // namespace uiutils
