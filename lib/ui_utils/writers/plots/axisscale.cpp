#include "writers/plots/axisscale_p.h"

#include <QtMath>

#include <algorithm>
#include <cmath>

namespace uiutils {

namespace {

// Below the limits of a double, so that no difference or product in this file overflows.
constexpr double largest = 1e300;
constexpr double smallest = 1e-300;
// An extent that is smaller, relative to its own values, is lost in their rounding.
constexpr double finest = 1e-10;
// The same for the logarithms of its values.
constexpr double finestRatio = 1 + 1e-6;

constexpr double roundDigits[] = {1, 2, 5};

/// 1, 2 or 5 times a power of ten: the smallest that is at least `value`.
double roundUp(double value)
{
    const double power = std::pow(10, std::floor(std::log10(value)));
    for (const double digit : roundDigits) {
        if (digit * power >= value * (1 - finest))
            return digit * power;
    }
    return 10 * power;
}

Interval linearExtent(Interval data)
{
    if (data.isEmpty())
        return {0, 1};
    const double low = qBound(-largest, data.low, largest);
    const double high = qBound(-largest, data.high, largest);
    const double magnitude = std::max(std::abs(low), std::abs(high));
    if (high - low > std::max(magnitude * finest, smallest))
        return {low, high};
    const double pad = magnitude < smallest ? 1 : magnitude * 0.05;
    return {low - pad, high + pad};
}

Interval positiveExtent(Interval data)
{
    if (data.isEmpty() || data.high <= 0)
        return {1, 10};
    const double high = qBound(smallest, data.high, largest);
    const double low = qBound(smallest, data.low, high);
    if (high < low * finestRatio)
        return {low / 1.05, high * 1.05};
    return {low, high};
}

int decadeOf(double value)
{
    // A mark may stand where the axis has no place.
    return value > 0 && std::isfinite(value) ? int(std::floor(std::log10(value) + finest)) : 0;
}

/// The decade of the smallest power of ten that is at least `value`.
int decadeAbove(double value)
{
    return -decadeOf(1 / value);
}

/// 1, 2 and 5 times the powers of ten within the interval.
QVector<double> roundValues(Interval interval)
{
    QVector<double> values;
    for (int decade = decadeOf(interval.low); decade <= decadeOf(interval.high); ++decade) {
        for (const double digit : roundDigits) {
            const double value = digit * std::pow(10, decade);
            if (value >= interval.low * (1 - finest) && value <= interval.high * (1 + finest))
                values += value;
        }
    }
    return values;
}

} // namespace

AxisScale::AxisScale(Interval data, Kind kind, Ends ends, int maximumTicks)
    : m_kind(kind)
{
    // An axis that crosses zero and ends at ticks needs three.
    const int ticks = std::max(3, maximumTicks);
    const TimeTicks::Kind times = kind == Date ? TimeTicks::Date : TimeTicks::Duration;
    if (isOfTime() && !TimeTicks::canShow(linearExtent(data), times))
        m_kind = Linear;
    if (isOfTime())
        scaleTimes(linearExtent(data), ticks);
    else if (kind == Logarithmic)
        scaleLogarithmically(positiveExtent(data), ends, ticks);
    else
        scaleLinearly(linearExtent(data), ends, ticks);
}

void AxisScale::scaleLinearly(Interval data, Ends ends, int maximumTicks)
{
    double first = 0;
    double last = 0;
    // Rounding to ticks may add one at each end; the next round step is used then.
    for (double wanted = (data.high - data.low) / maximumTicks;; wanted = m_step * 1.5) {
        m_step = roundUp(wanted);
        const double slack = m_step * finest;
        first = ends == AtTicks ? std::floor((data.low + slack) / m_step) : std::ceil((data.low - slack) / m_step);
        last = ends == AtTicks ? std::ceil((data.high - slack) / m_step) : std::floor((data.high + slack) / m_step);
        if (last - first + 1 <= maximumTicks)
            break;
    }
    m_low = ends == AtTicks ? first * m_step : data.low;
    m_high = ends == AtTicks ? last * m_step : data.high;
    for (int n = 0; n <= int(last - first); ++n)
        m_ticks += (first + n) * m_step;
}

void AxisScale::scaleTimes(Interval data, int maximumTicks)
{
    m_low = data.low;
    m_high = data.high;
    m_times = TimeTicks(data, m_kind == Date ? TimeTicks::Date : TimeTicks::Duration, maximumTicks);
    m_ticks = m_times.ticks();
}

void AxisScale::scaleLogarithmically(Interval data, Ends ends, int maximumTicks)
{
    const bool isNarrow = data.high < data.low * (ends == AtTicks ? 10 : 100);
    if (isNarrow && addRoundTicks(data, ends, maximumTicks))
        return;
    if (addDecades(data, ends, maximumTicks))
        return;
    scaleLinearly(data, ends, maximumTicks);
    m_hasEvenTicks = true;
}

/// Ticks at 1, 2 and 5 times the powers of ten. Returns false if these are too few or too many.
bool AxisScale::addRoundTicks(Interval data, Ends ends, int maximumTicks)
{
    if (ends == AtTicks)
        data = {1 / roundUp(1 / data.low), roundUp(data.high)};
    const QVector<double> ticks = roundValues(data);
    if (ticks.size() < 2 || ticks.size() > maximumTicks)
        return false;
    m_ticks = ticks;
    m_low = ends == AtTicks ? ticks.constFirst() : data.low;
    m_high = ends == AtTicks ? ticks.constLast() : data.high;
    return true;
}

/// Ticks at powers of ten. Returns false if the axis has fewer than two of them; one that ends at ticks always has two.
bool AxisScale::addDecades(Interval data, Ends ends, int maximumTicks)
{
    int first = decadeAbove(data.low);
    int last = decadeOf(data.high);
    if (ends == AtTicks) {
        first = decadeOf(data.low);
        last = std::max(first + 1, decadeAbove(data.high));
        data = {std::pow(10, first), std::pow(10, last)};
    }
    if (last <= first)
        return false;
    m_low = data.low;
    m_high = data.high;

    int stride = 1;
    while ((last - first) / stride + 1 > maximumTicks)
        ++stride;
    for (int decade = first; decade <= last; decade += stride)
        m_ticks += std::pow(10, decade);
    for (int decade = decadeOf(m_low); stride == 1 && decade <= last; ++decade) {
        for (int digit = 2; digit <= 9; ++digit) {
            const double value = digit * std::pow(10, decade);
            if (value > m_low && value < m_high)
                m_minorTicks += value;
        }
    }
    return true;
}

double AxisScale::position(double value) const
{
    if (m_kind != Logarithmic)
        return qBound(0.0, (value - m_low) / (m_high - m_low), 1.0);
    if (value <= 0)
        return qQNaN();
    const double first = std::log10(m_low);
    return qBound(0.0, (std::log10(value) - first) / (std::log10(m_high) - first), 1.0);
}

QString AxisScale::label(double tick, const QLocale& locale) const
{
    if (isOfTime())
        return m_times.label(tick, locale);
    if (m_kind == Logarithmic && !m_hasEvenTicks) {
        // One notation for all ticks, so that they can be compared.
        const bool isPlain = m_ticks.constFirst() > 0.99e-4 && m_ticks.constLast() < 1.01e6;
        return isPlain ? locale.toString(tick, 'f', std::max(0, -decadeOf(tick))) : locale.toString(tick, 'e', 0);
    }
    const double magnitude = std::max(std::abs(m_low), std::abs(m_high));
    const int stepDecade = decadeOf(m_step);
    if (magnitude < 1e7 && stepDecade >= -6)
        return locale.toString(tick, 'f', std::max(0, -stepDecade));
    return tick == 0 ? locale.toString(0)
                     : locale.toString(tick, 'e', qBound(0, decadeOf(std::abs(tick)) - stepDecade, 12));
}

} // namespace uiutils
