#include "report/viewer_p.h"

#include "base/paths_p.h"
#include "report/reportformats_p.h"

#include <QFileInfo>
#include <QProcess>

namespace uiutils {

bool isForViewer(const QString& path)
{
    return path.endsWith(pdfSuffix) || path.endsWith(pdfSuffix + gzipSuffix);
}

bool hasViewer()
{
    return QFileInfo(onDisk(paths::pdfViewer)).isExecutable();
}

void startViewer(const QString& path, const QString& windowTitle)
{
    QStringList arguments = QStringLiteral("-plugin EvdevTouch:/dev/input/event1 --dpy 85 -s").split(QLatin1Char(' '));
    arguments << onDisk(path) << QStringLiteral("-t") << windowTitle;
    QProcess::startDetached(onDisk(paths::pdfViewer), arguments, onDisk(paths::pdfViewerFolder));
}

} // namespace uiutils
