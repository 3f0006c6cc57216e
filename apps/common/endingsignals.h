#pragma once

namespace uiutils::apps {

/// Blocks what ends a program from outside (SIGINT, SIGTERM, SIGHUP), except signals that the caller had ignored, as
/// nohup does. Returns a descriptor that is readable while one waits; it does not block and closes on exec. Call it
/// before any thread starts.
int holdEndingSignals();

} // namespace uiutils::apps
