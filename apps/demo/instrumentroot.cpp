#include "instrumentroot.h"

#include "places.h"
#include "texts.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace uiutils::demo {

namespace {

QString whatToDo()
{
    return QLatin1Char(' ') + Texts::tr("Check that you may write there, or name another folder with --root.");
}

/// A link of an earlier run may lead to a build that has been deleted.
bool linkViewer(const QString& root, const QString& viewer, QString* error)
{
    if (viewer.isEmpty())
        return true;
    // The viewer is started in a folder that must exist.
    const QFileInfo there(root + places::pdfViewer);
    if (!makeFolder(there.path(), error) || !makeFolder(root + places::pdfViewerFolder, error))
        return false;
    if (there.symLinkTarget() == viewer || (there.exists() && !there.isSymLink()))
        return true;
    const QString place = there.filePath();
    QFile::remove(place);
    if (QFile::link(viewer, place))
        return true;
    *error = Texts::tr("The link %1 to the viewer of PDF files cannot be created.").arg(place) + whatToDo();
    return false;
}

} // namespace

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

bool prepareInstrumentRoot(const QString& root, const QString& viewer, QString* error)
{
    const QString images = root + places::images;
    // Reports write their plots to the instrument's /tmp.
    if (!makeFolder(images, error) || !makeFolder(root + QStringLiteral("/tmp"), error))
        return false;
    return linkViewer(root, viewer, error);
}

} // namespace uiutils::demo
