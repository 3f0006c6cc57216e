#include "common/locations.h"

#include <embedded/embeddedbackend.h>

#include <QCoreApplication>
#include <QDir>

namespace uiutils::apps {

namespace {

/// `ofTree` while the tree is there, else a folder beside the installed program.
QString ofTreeOrBesideProgram(const QString& ofTree, const QString& fromProgram)
{
    if (QDir(ofTree).exists())
        return ofTree;
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + QLatin1Char('/') + fromProgram);
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
    return {ofTreeOrBesideProgram(
            QStringLiteral(UIUTILS_SERVICES_OF_TREE), QStringLiteral("../share/uiutils/services"))};
}

QString qmlModuleFolder()
{
    return ofTreeOrBesideProgram(QStringLiteral(UIUTILS_QML_OF_TREE), QStringLiteral(UIUTILS_QML_FROM_BIN));
}

} // namespace uiutils::apps
