#pragma once

#include <QCoreApplication>

namespace kiv::simulation {

/// What is wrong in the parts of service files that move items, and what simulated actions answer.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Simulation)
};

} // namespace kiv::simulation
