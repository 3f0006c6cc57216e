#include "diskspace.h"

#include <sys/statvfs.h>

#include <cerrno>

#include <dlfcn.h>

namespace uiutils::demo {

namespace {

bool isNoneShown = false;

#ifdef __USE_FILE_OFFSET64
constexpr char realName[] = "statvfs64";
#else
constexpr char realName[] = "statvfs";
#endif

} // namespace

void showNoSpace(bool isShown)
{
    isNoneShown = isShown;
}

} // namespace uiutils::demo

/// In place of the function of the C library, for all libraries of the process: they ask it for the free space.
extern "C" __attribute__((visibility("default"))) int statvfs(const char* path, struct statvfs* answer) noexcept
{
    using Function = int (*)(const char*, struct statvfs*);
    static const auto real = reinterpret_cast<Function>(::dlsym(RTLD_NEXT, uiutils::demo::realName));
    if (!real) {
        errno = ENOSYS;
        return -1;
    }
    const int result = real(path, answer);
    if (result == 0 && uiutils::demo::isNoneShown)
        answer->f_bfree = answer->f_bavail = 0;
    return result;
}
