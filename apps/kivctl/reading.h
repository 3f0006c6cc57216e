#pragma once

namespace uiutils::kivctl {

class Services;
struct Options;

// Commands that change nothing; each returns the exit status, having complained.

int list(Services& services, const Options& options);
int get(Services& services, const Options& options);
int dump(Services& services, const Options& options);
int listServices(Services& services, const Options& options);

} // namespace uiutils::kivctl
