#pragma once

namespace uiutils::kivctl {

class Services;
struct Options;

// Commands about recordings; each returns the exit status, having complained.

/// Records services until the duration is over, or SIGINT, SIGTERM or SIGHUP comes.
int record(Services& services, const Options& options);

/// Publishes a recording on the bus, until its end or such a signal.
int replay(const Options& options);

} // namespace uiutils::kivctl
