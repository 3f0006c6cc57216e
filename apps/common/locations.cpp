#include "common/locations.h"

#include <embedded/embeddedbackend.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace uiutils::apps {

namespace {

/// The folder beside the installed program, or the one in the tree for a program that was not installed.
QString besideProgramOrOfTree(const QString& fromProgram, const QString& ofTree)
{
    const QString installed = QDir::cleanPath(QCoreApplication::applicationDirPath() + QLatin1Char('/') + fromProgram);
    return QDir(installed).exists() ? installed : ofTree;
}

} // namespace

QString defaultRoot(const QString& program)
{
    const QString fromEnvironment = qEnvironmentVariable("UIUTILS_ROOT");
    if (!fromEnvironment.isEmpty())
        return fromEnvironment;
    QString state = qEnvironmentVariable("XDG_STATE_HOME");
    if (!QDir::isAbsolutePath(state))
        state = QDir::homePath() + QStringLiteral("/.local/state");
    return state + QLatin1Char('/') + program;
}

QStringList defaultServiceFolders()
{
    const QStringList fromEnvironment = kiv::embedded::EmbeddedBackend::foldersFromEnvironment();
    if (!fromEnvironment.isEmpty())
        return fromEnvironment;
    return {besideProgramOrOfTree(
            QStringLiteral("../share/uiutils/services"), QStringLiteral(UIUTILS_SERVICES_OF_TREE))};
}

QString pdfViewerProgram()
{
    for (const QLatin1String place : {QLatin1String(UIUTILS_PDF_VIEWER_FROM_BIN), QLatin1String("pdf_viewer")}) {
        const QFileInfo viewer(QCoreApplication::applicationDirPath() + QLatin1Char('/') + place);
        if (viewer.isFile() && viewer.isExecutable())
            return viewer.canonicalFilePath();
    }
    return QString();
}

QString qmlModuleFolder()
{
    return besideProgramOrOfTree(QStringLiteral(UIUTILS_QML_FROM_BIN), QStringLiteral(UIUTILS_QML_OF_TREE));
}

} // namespace uiutils::apps
