#pragma once

#include "random_p.h"

#include <QVariant>

#include <limits>
#include <optional>

namespace kiv::simulation {

/// A moment that never comes; all times are in milliseconds since the simulation began.
constexpr qint64 never = std::numeric_limits<qint64>::max();

/// A range of numbers, both ends included; without an end it is open there.
struct Range
{
    std::optional<double> from;
    std::optional<double> to;

    bool holds(double value) const { return !(from && !(value >= *from)) && !(to && !(value <= *to)); }
    double nearest(double value) const;
};

/// How an item moves, as a service file says it.
struct Motion
{
    enum Kind { Constant, Ramp, Sine, Walk, List };
    enum End { Repeat, Back, Stay };

    QString id;
    /// A KIVClientItem::TypeCode.
    unsigned type = 0;
    Kind kind = Constant;
    /// What follows the end of a ramp or list.
    End end = Repeat;
    /// The ends of a ramp or sine, which no value exceeds.
    Range range;
    /// The value at the beginning, around which a constant one has its noise.
    QVariant start;
    /// Of a list, in the item's type.
    QVariantList values;
    /// The largest difference that noise makes.
    double noise = 0;
    /// The largest difference of one step of a walk.
    double step = 0;
    /// Milliseconds of a ramp or of a cycle of a sine.
    qint64 periodMs = 1;
    /// Milliseconds from one value to the next.
    qint64 everyMs = 200;
    /// The action during which the item moves; empty for always.
    QString whileAction;
};

/// The values of a moving item, as a function of the seed and of how many steps have passed.
class Mover
{
public:
    Mover(const Motion& motion, quint64 seed);

    /// Begins anew, with other random numbers each time.
    void restart();
    /// The value after that many steps, which must not decrease before the next restart().
    QVariant valueAt(quint64 step);

private:
    double numberAt(quint64 step);
    double walkedTo(quint64 step);
    QVariant arrayAt(QVariantList values, quint64 step) const;
    QVariant listed(quint64 step) const;
    QVariant fitting(double number) const;
    double noiseAt(quint64 index) const;

    Motion m_motion;
    quint64 m_seed;
    quint64 m_round = 0;
    RandomSequence m_random;
    RandomSequence m_noise;
    quint64 m_walkedSteps = 0;
    double m_position = 0;
};

} // namespace kiv::simulation
