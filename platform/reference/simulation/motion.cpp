#include "motion_p.h"

#include <kiv/kivclientitem.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace kiv::simulation {

namespace {

/// The part of a period that has passed; of a movement there and back, the part of the way.
double phaseOf(double periods, Motion::End end)
{
    if (end == Motion::Stay)
        return std::min(periods, 1.0);
    const double phase = periods - std::floor(periods);
    const bool isReturning = end == Motion::Back && std::fmod(std::floor(periods), 2) == 1;
    return isReturning ? 1 - phase : phase;
}

quint64 indexOf(quint64 step, quint64 count, Motion::End end)
{
    if (end == Motion::Stay || count == 1)
        return std::min(step, count - 1);
    if (end == Motion::Repeat)
        return step % count;
    // There and back, the two ends once each.
    const quint64 turn = 2 * (count - 1);
    return std::min(step % turn, turn - step % turn);
}

/// The whole numbers of a range that the type has.
Range wholeRange(unsigned type, const Range& range)
{
    const bool isUnsigned = type == KIVClientItem::TypeUInt;
    const double least = isUnsigned ? 0 : double(std::numeric_limits<int>::min());
    const double most = isUnsigned ? double(std::numeric_limits<uint>::max()) : double(std::numeric_limits<int>::max());
    return {std::max(least, std::ceil(range.from.value_or(least))),
            std::min(most, std::floor(range.to.value_or(most)))};
}

} // namespace

double Range::nearest(double value) const
{
    if (from && value < *from)
        return *from;
    return to && value > *to ? *to : value;
}

Mover::Mover(const Motion& motion, quint64 seed)
    : m_motion(motion)
    , m_seed(seed)
    , m_random(seed, motion.id)
    , m_noise(seed, motion.id + QLatin1String("noise"))
{
    restart();
}

void Mover::restart()
{
    m_random = RandomSequence(m_seed + m_round, m_motion.id);
    m_noise = RandomSequence(m_seed + m_round, m_motion.id + QLatin1String("noise"));
    ++m_round;
    m_walkedSteps = 0;
    const double middle = (m_motion.range.from.value_or(0) + m_motion.range.to.value_or(0)) / 2;
    m_position = m_motion.range.nearest(m_motion.start.isValid() ? m_motion.start.toDouble() : middle);
}

QVariant Mover::valueAt(quint64 step)
{
    const bool isList = m_motion.kind == Motion::List;
    const QVariant given = isList ? listed(step) : m_motion.start;
    // Noise makes no value of none.
    if ((isList || m_motion.kind == Motion::Constant) && !given.isValid())
        return QVariant();
    if (m_motion.type == KIVClientItem::TypeDoubleArray)
        return arrayAt(given.toList(), step);
    if (isList && m_motion.noise <= 0)
        return given;
    return fitting(numberAt(step) + noiseAt(step));
}

double Mover::numberAt(quint64 step)
{
    const double from = m_motion.range.from.value_or(0);
    const double to = m_motion.range.to.value_or(0);
    const double periods = double(step) * double(m_motion.everyMs) / double(m_motion.periodMs);
    switch (m_motion.kind) {
    case Motion::Ramp:
        return from + (to - from) * phaseOf(periods, m_motion.end);
    case Motion::Sine:
        return (from + to) / 2 + (to - from) / 2 * std::sin(2 * M_PI * (periods - std::floor(periods)));
    case Motion::Walk:
        return walkedTo(step);
    case Motion::List:
        return listed(step).toDouble();
    case Motion::Constant:
        break;
    }
    return m_motion.start.toDouble();
}

/// A step that would leave the range is taken the other way, as far as there is room.
double Mover::walkedTo(quint64 step)
{
    for (; m_walkedSteps < step; ++m_walkedSteps) {
        const double by = m_random.between(-m_motion.step, m_motion.step, m_walkedSteps);
        const bool isInside = m_motion.range.holds(m_position + by);
        m_position = m_motion.range.nearest(isInside ? m_position + by : m_position - by);
    }
    return m_position;
}

QVariant Mover::arrayAt(QVariantList values, quint64 step) const
{
    if (m_motion.noise <= 0)
        return values;
    for (int i = 0; i < values.size(); ++i) {
        const quint64 index = step * quint64(values.size()) + quint64(i);
        values[i] = m_motion.range.nearest(values.at(i).toDouble() + noiseAt(index));
    }
    return values;
}

QVariant Mover::listed(quint64 step) const
{
    return m_motion.values.at(int(indexOf(step, quint64(m_motion.values.size()), m_motion.end)));
}

QVariant Mover::fitting(double number) const
{
    if (m_motion.type == KIVClientItem::TypeDouble)
        return m_motion.range.nearest(number);
    return wholeRange(m_motion.type, m_motion.range).nearest(std::round(number));
}

double Mover::noiseAt(quint64 index) const
{
    return m_motion.noise > 0 ? m_noise.between(-m_motion.noise, m_motion.noise, index) : 0;
}

} // namespace kiv::simulation
