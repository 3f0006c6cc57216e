#pragma once

#include <QCoreApplication>

namespace kiv::bus {

/// What the bus platform says.
struct BusTexts
{
    Q_DECLARE_TR_FUNCTIONS(ServiceBus)
};

} // namespace kiv::bus
