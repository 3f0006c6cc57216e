#pragma once

#include <QString>
#include <QStringList>

#include <functional>

namespace kiv::embedded {
class EmbeddedService;
}

namespace uiutils::demo {

class LoopbackMeasurement;

/// Publishes the samples of each finished run through the services "loopback_rtt" and "loopback_throughput", with the
/// limits of that moment, so that reports can plot them. A service that is not published is left out. Deleted with the
/// measurement. `service` returns the own side of a service by its name, or null.
void publishResults(LoopbackMeasurement* measurement,
        const std::function<kiv::embedded::EmbeddedService*(const QString&)>& service);

/// The names of both.
QStringList resultServices();

} // namespace uiutils::demo
