#include "writers/axisscale_p.h"

#include <QtMath>

#include <algorithm>
#include <cmath>

namespace uiutils {

namespace {

// Short of the ends of a double, so that no difference or product below overflows.
constexpr double largest = 1e300;
constexpr double smallest = 1e-300;
// An extent that is smaller against its own values drowns in their rounding.
constexpr double finest = 1e-10;

/// 1, 2 or 5 times a power of ten, the next that is not below `value`.
double roundUp(double value)
{
    const double power = std::pow(10, std::floor(std::log10(value)));
    for (const double digit : {1.0, 2.0, 5.0}) {
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
    return {low, high};
}

int decadeOf(double value)
{
    return int(std::floor(std::log10(value) + finest));
}

} // namespace

void Interval::include(double value)
{
    if (!std::isfinite(value))
        return;
    if (isEmpty()) {
        low = value;
        high = value;
        return;
    }
    low = std::min(low, value);
    high = std::max(high, value);
}

AxisScale::AxisScale(Interval data, Kind kind, Ends ends, int maximumTicks)
    : m_kind(kind)
{
    // An axis across zero that ends at ticks needs three.
    const int ticks = std::max(3, maximumTicks);
    if (kind == Logarithmic)
        scaleLogarithmically(positiveExtent(data), ticks);
    else
        scaleLinearly(linearExtent(data), ends, ticks);
}

void AxisScale::scaleLinearly(Interval data, Ends ends, int maximumTicks)
{
    double first = 0;
    double last = 0;
    // Rounding to ticks may add one at either end, and then the next round step is due.
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

void AxisScale::scaleLogarithmically(Interval data, int maximumTicks)
{
    const int first = decadeOf(data.low);
    const int last = std::max(first + 1, -decadeOf(1 / data.high));
    if (data.high < data.low * 10)
        addFineTicks(data);
    else
        addDecades(first, last, maximumTicks);
}

/// Within a decade: from one 1, 2 or 5 times a power of ten to another.
void AxisScale::addFineTicks(Interval data)
{
    const double decade = std::pow(10, decadeOf(data.low));
    QVector<double> candidates;
    for (const double power : {decade, decade * 10}) {
        for (const double digit : {1.0, 2.0, 5.0})
            candidates += digit * power;
    }
    candidates += decade * 100;

    int first = 0;
    while (first + 1 < candidates.size() && candidates.at(first + 1) <= data.low * (1 + finest))
        ++first;
    int last = first + 1;
    while (last + 1 < candidates.size() && candidates.at(last) < data.high * (1 - finest))
        ++last;
    m_ticks = candidates.mid(first, last - first + 1);
    m_low = m_ticks.constFirst();
    m_high = m_ticks.constLast();
}

void AxisScale::addDecades(int first, int last, int maximumTicks)
{
    int stride = 1;
    while ((last - first) / stride + 1 > maximumTicks)
        ++stride;
    for (int decade = first; decade <= last; decade += stride)
        m_ticks += std::pow(10, decade);
    m_low = std::pow(10, first);
    m_high = std::pow(10, last);
    if (stride > 1)
        return;
    for (int decade = first; decade < last; ++decade) {
        for (int digit = 2; digit <= 9; ++digit)
            m_minorTicks += digit * std::pow(10, decade);
    }
}

double AxisScale::position(double value) const
{
    if (m_kind == Linear)
        return (value - m_low) / (m_high - m_low);
    if (value <= 0)
        return qQNaN();
    const double first = std::log10(m_low);
    return (std::log10(value) - first) / (std::log10(m_high) - first);
}

QString AxisScale::label(double tick, const QLocale& locale) const
{
    if (m_kind == Logarithmic)
        return locale.toString(tick, 'g', 6);
    const double magnitude = std::max(std::abs(m_low), std::abs(m_high));
    const int stepDecade = decadeOf(m_step);
    if (magnitude < 1e7 && stepDecade >= -6)
        return locale.toString(tick, 'f', std::max(0, -stepDecade));
    return tick == 0 ? locale.toString(0) : locale.toString(tick, 'e', qBound(0, decadeOf(std::abs(tick)) - stepDecade, 12));
}

} // namespace uiutils
