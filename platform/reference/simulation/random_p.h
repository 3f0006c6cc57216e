#pragma once

#include <QString>

namespace kiv::simulation {

/// A sequence of random numbers of its own for every seed and name, the same on every machine and in every version of
/// any library. Any of its numbers can be drawn without those before it.
class RandomSequence
{
public:
    RandomSequence(quint64 seed, const QString& name);

    /// The number with that index: at least 0 and less than 1.
    double at(quint64 index) const;
    /// The same, between two numbers.
    double between(double least, double most, quint64 index) const { return least + (most - least) * at(index); }

private:
    quint64 m_begin;
};

} // namespace kiv::simulation
