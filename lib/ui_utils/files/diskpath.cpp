#include "files/diskpath.h"

#include "base/paths_p.h"

namespace uiutils {

QString diskPath(const QString& path)
{
    return onDisk(path);
}

} // namespace uiutils
