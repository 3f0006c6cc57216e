#pragma once

namespace uiutils::kivctl {

class Services;
struct Options;

// Commands that change something; each returns the exit status, having complained.

int set(Services& services, const Options& options);
int batch(Services& services, const Options& options);
int load(Services& services, const Options& options);
int action(Services& services, const Options& options);

} // namespace uiutils::kivctl
