#include "common/startup.h"

#include "base/paths_p.h"

#include <embedded/embeddedbackend.h>

#include <QCoreApplication>
#include <QFile>

namespace uiutils::apps {

bool useRoot(const QString& root)
{
    const QByteArray name = QFile::encodeName(root);
    if (!root.contains(QChar(QChar::ReplacementCharacter)) && QFile::decodeName(name) == root)
        return qputenv("UIUTILS_ROOT", name);
    complain(QCoreApplication::translate("CommandLine",
            "The name of the folder %1, given by --root or UIUTILS_ROOT, is not written in the encoding of file names. "
            "Name another folder.")
                     .arg(root));
    return false;
}

bool loadServices(kiv::embedded::EmbeddedBackend& backend, const QStringList& folders, const QString& root)
{
    backend.setStateFolder(root + paths::serviceSettings);
    const QStringList problems = backend.loadFolders(folders);
    for (const QString& problem : problems)
        complain(problem);
    if (!backend.serviceNames().isEmpty())
        return true;
    complain(QCoreApplication::translate(
            "CommandLine", "No service could be loaded from %1. Name a folder with service files with --services.")
                     .arg(folders.join(QStringLiteral(", "))));
    return false;
}

} // namespace uiutils::apps
