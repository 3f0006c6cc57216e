#include "processlimits.h"

#include <sys/resource.h>

namespace uiutils::viewer {

namespace {

void limit(int resource, rlim_t most)
{
    rlimit held {};
    if (::getrlimit(resource, &held) != 0 || held.rlim_cur <= most)
        return;
    held.rlim_cur = most;
    ::setrlimit(resource, &held);
}

} // namespace

void limitProcess()
{
    limit(RLIMIT_CORE, 0);
    // Memory that address sanitizers reserve counts as data.
#if !defined(__SANITIZE_ADDRESS__)
    constexpr rlim_t mostData = rlim_t(1024) * 1024 * 1024;
    limit(RLIMIT_DATA, mostData);
#endif
}

} // namespace uiutils::viewer
