#include "instrumentroot.h"

#include "places.h"
#include "texts.h"

#include <QDir>
#include <QFileInfo>

namespace uiutils::demo {

bool makeFolder(const QString& folder, QString* error)
{
    // The error depends on the nearest existing part of the path.
    QFileInfo nearest(folder);
    while (!nearest.exists() && nearest.path() != nearest.filePath())
        nearest.setFile(nearest.path());
    if (!nearest.isDir()) {
        *error = Texts::tr("The folder %1 cannot be created, because %2 is a file. Name another folder with --root.")
                         .arg(folder, nearest.filePath());
        return false;
    }
    if (QDir().mkpath(folder))
        return true;
    *error = Texts::tr(
            "The folder %1 cannot be created in %2. Check that you may write there, or name another folder with "
            "--root.")
                     .arg(folder, nearest.filePath());
    return false;
}

bool prepareInstrumentRoot(const QString& root, QString* error)
{
    // Reports write their plots to the instrument's /tmp.
    return makeFolder(root + places::images, error) && makeFolder(root + QStringLiteral("/tmp"), error);
}

} // namespace uiutils::demo
