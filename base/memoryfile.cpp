#include "base/memoryfile_p.h"

#include <sys/mman.h>
#include <unistd.h>

namespace uiutils {

MemoryFile::MemoryFile()
    : m_fd(::memfd_create("uiutils", MFD_CLOEXEC))
{
}

MemoryFile::~MemoryFile()
{
    if (m_fd >= 0)
        ::close(m_fd);
}

QString MemoryFile::path() const
{
    return m_fd < 0 ? QString() : QStringLiteral("/proc/self/fd/%1").arg(m_fd);
}

} // namespace uiutils
