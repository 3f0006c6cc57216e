#include "report/viewer_p.h"

#include "base/paths_p.h"
#include "languages/languages.h"
#include "report/reportformats_p.h"

#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

namespace uiutils {

namespace {

/// Empty without a window system, in which another program could show a file.
QString desktopProgram()
{
    const bool hasWindows = !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
    return hasWindows ? QStandardPaths::findExecutable(QStringLiteral("xdg-open")) : QString();
}

} // namespace

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
    QProcess viewer;
    viewer.setProgram(onDisk(paths::pdfViewer));
    viewer.setArguments(arguments);
    viewer.setWorkingDirectory(onDisk(paths::pdfViewerFolder));
    // It speaks as this application does now, whatever the language of the system.
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LANGUAGE"), Languages::instance()->current());
    viewer.setProcessEnvironment(environment);
    viewer.startDetached();
}

bool isForDesktop(const QString& path)
{
    return !path.endsWith(gzipSuffix);
}

bool hasDesktop()
{
    return !desktopProgram().isEmpty();
}

bool openOnDesktop(const QString& path)
{
    const QString program = desktopProgram();
    return !program.isEmpty() && QProcess::startDetached(program, {QFileInfo(onDisk(path)).absoluteFilePath()});
}

} // namespace uiutils
