#include "ui_host/viewerlink_p.h"

#include "base/durablefile_p.h"
#include "base/ownplace_p.h"
#include "base/paths_p.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

namespace uiutils {

namespace {

/// As installed, and as built.
QString installedViewer()
{
    const QFileInfo viewer(
            besideOwnFile({QStringLiteral(UIUTILS_PDF_VIEWER_FROM_LIBRARY), QStringLiteral("../bin/pdf_viewer")}));
    return viewer.isFile() && viewer.isExecutable() ? viewer.filePath() : QString();
}

/// A link of an earlier run may lead to an installation that has been removed.
bool isLinkTo(const QString& viewer, const QFileInfo& place)
{
    if (place.symLinkTarget() == viewer || (place.exists() && !place.isSymLink()))
        return true;
    QFile::remove(place.filePath());
    return QFile::link(viewer, place.filePath());
}

} // namespace

QStringList placeViewer()
{
    const QString viewer = qEnvironmentVariableIsEmpty("UIUTILS_ROOT") ? QString() : installedViewer();
    if (viewer.isEmpty())
        return QStringList();
    const QFileInfo place(onDisk(paths::pdfViewer));
    // The viewer is started in a folder that must exist.
    if (makeFolderDurably(place.path()) && makeFolderDurably(onDisk(paths::pdfViewerFolder)) && isLinkTo(viewer, place))
        return QStringList();
    return {QCoreApplication::translate("Host",
            "Saved reports cannot be shown: the link %1 to the viewer of PDF files cannot be created. Check that you may "
            "write there.")
                    .arg(place.filePath())};
}

} // namespace uiutils
