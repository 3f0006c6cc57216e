#pragma once

namespace kiv::embedded {
class EmbeddedBackend;
}

namespace uiutils::demo {

class LoopbackMeasurement;

/// Publishes the samples of each finished run through the services "loopback_rtt" and "loopback_throughput", with the
/// limits of that moment, so that reports can plot them. A service that is not published is left out. Deleted with the
/// measurement; the back end must outlive it.
void publishResults(LoopbackMeasurement* measurement, const kiv::embedded::EmbeddedBackend* backend);

} // namespace uiutils::demo
