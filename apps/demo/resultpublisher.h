#pragma once

namespace kiv::embedded {
class EmbeddedBackend;
}

namespace uiutils::demo {

class LoopbackMeasurement;

/// Lets the services "loopback_rtt" and "loopback_throughput" publish the samples of each run that finishes, with the
/// limits of that moment, so that reports can plot them. A service that is not published is passed over. Ends with
/// the measurement; the back end has to outlive it.
void publishResults(LoopbackMeasurement* measurement, const kiv::embedded::EmbeddedBackend* backend);

} // namespace uiutils::demo
