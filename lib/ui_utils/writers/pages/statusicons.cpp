#include "writers/pages/statusicons_p.h"

#include "base/paths_p.h"
#include "core/status.h"

#include <QFile>
#include <QFileInfo>

namespace uiutils {

namespace {

constexpr qint64 maximumIconSize = qint64(1024) * 1024;

} // namespace

QLatin1String statusIconPath(int status)
{
    switch (status) {
    case Status::Pass:
        return paths::passIcon;
    case Status::Marginal:
        return paths::marginalIcon;
    case Status::Fail:
        return paths::failIcon;
    default:
        return QLatin1String();
    }
}

QByteArray readIcon(const QString& path)
{
    QFile file(onDisk(path));
    if (!QFileInfo(file).isFile() || file.size() > maximumIconSize || !file.open(QIODevice::ReadOnly))
        return QByteArray();
    return file.readAll();
}

} // namespace uiutils
