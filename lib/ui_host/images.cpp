#include "ui_host/images_p.h"

#include "base/durablefile_p.h"
#include "base/ownplace_p.h"
#include "base/paths_p.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

namespace uiutils {

namespace {

QStringList missingImages()
{
    QStringList missing;
    for (const QLatin1String path : {paths::passIcon, paths::marginalIcon, paths::failIcon, paths::logo}) {
        const QFileInfo image(onDisk(path));
        if (!image.exists())
            missing += image.filePath();
    }
    return missing;
}

/// Empty when done, or when something has the name: a link that leads nowhere, or what another process has placed.
QString placeImage(const QString& from, const QString& to)
{
    QFile image(from);
    if (!image.open(QIODevice::ReadOnly))
        return QCoreApplication::translate("Host", "%1 cannot be read: %2.").arg(from, image.errorString());
    QString error;
    return writeNewFileDurably(to, image.readAll(), &error) == NewFile::Failed ? error : QString();
}

} // namespace

QStringList placeImages()
{
    const QStringList missing = qEnvironmentVariableIsEmpty("UIUTILS_ROOT") ? QStringList() : missingImages();
    if (missing.isEmpty())
        return QStringList();
    const QString folder = onDisk(paths::images);
    if (!makeFolderDurably(folder))
        return {QCoreApplication::translate(
                "Host", "Reports have no icons: the folder %1 cannot be created. Check that you may write there.")
                        .arg(folder)};
    const QString source = installedFolder(QStringLiteral(UIUTILS_SHARED_FOLDER "/images"));
    if (source.isEmpty())
        return {QCoreApplication::translate("Host", "Reports have no icons: those of the library are not installed.")};
    QStringList problems;
    for (const QString& image : missing) {
        const QString problem = placeImage(source + QLatin1Char('/') + QFileInfo(image).fileName(), image);
        if (!problem.isEmpty())
            problems += QCoreApplication::translate("Host", "An image of reports is missing. %1").arg(problem);
    }
    return problems;
}

} // namespace uiutils
