#pragma once

#include <QString>
#include <QtGlobal>

namespace uiutils {

/// A file in memory, for code that can only write to a file with a name. It needs no space on a disk, and nothing of it
/// remains when the process ends.
class MemoryFile
{
public:
    MemoryFile();
    ~MemoryFile();
    Q_DISABLE_COPY_MOVE(MemoryFile)

    /// A name under which this process can open it; empty, with the reason in errno, on failure.
    QString path() const;

private:
    int m_fd = -1;
};

} // namespace uiutils
