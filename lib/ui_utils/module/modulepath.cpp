#include "module/modulepath.h"

#include "base/ownplace_p.h"

#include <QDir>

namespace uiutils {

QString qmlImportPath()
{
    // As installed, and as built.
    const QString description = besideOwnFile(
            {QLatin1String(UIUTILS_QML_FROM_LIBRARY "/UiUtils/qmldir"), QLatin1String("../qml/UiUtils/qmldir")});
    return description.isEmpty() ? QString() : QDir::cleanPath(description + QLatin1String("/../.."));
}

} // namespace uiutils
