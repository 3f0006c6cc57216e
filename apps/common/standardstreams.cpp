#include "common/standardstreams.h"

#include <fcntl.h>
#include <initializer_list>
#include <unistd.h>

namespace uiutils::apps {

void holdStandardStreams()
{
    // In ascending order, because open() takes the lowest free number.
    for (const int fd : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (::fcntl(fd, F_GETFD) < 0)
            ::open("/dev/null", fd == STDIN_FILENO ? O_WRONLY : O_RDONLY);
    }
}

} // namespace uiutils::apps
