#include "module/modulepath.h"

#include "base/ownplace_p.h"

#include <QDir>
#include <QFileInfo>

namespace uiutils {

QString qmlImportPath()
{
    const QString own = ownFile();
    const QDir beside = QFileInfo(own).dir();
    // As installed, and as built.
    for (const QLatin1String place : {QLatin1String(UIUTILS_QML_FROM_LIBRARY), QLatin1String("../qml")}) {
        const QString folder = QDir::cleanPath(beside.filePath(place));
        if (!own.isEmpty() && QFileInfo::exists(folder + QLatin1String("/UiUtils/qmldir")))
            return folder;
    }
    return QString();
}

} // namespace uiutils
