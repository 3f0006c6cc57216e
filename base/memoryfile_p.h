#pragma once

#include <QString>
#include <QtGlobal>

namespace uiutils {

/// A file in memory, for those who can only write to a file that has a name. No disk can be too full for it, and
/// nothing of it is left when the process ends.
class MemoryFile
{
public:
    MemoryFile();
    ~MemoryFile();
    Q_DISABLE_COPY_MOVE(MemoryFile)

    /// A name under which this process may open it; empty, with the reason in errno, when there is none.
    QString path() const;

private:
    int m_fd = -1;
};

} // namespace uiutils
