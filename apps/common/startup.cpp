#include "common/startup.h"

#include "base/paths.h"

#include <embedded/embeddedbackend.h>

#include <QCoreApplication>

namespace uiutils::apps {

bool loadServices(kiv::embedded::EmbeddedBackend& backend, const QStringList& folders, const QString& root)
{
    backend.setStateFolder(root + paths::serviceSettings);
    const QStringList problems = backend.loadFolders(folders);
    for (const QString& problem : problems)
        complain(problem);
    if (!backend.serviceNames().isEmpty())
        return true;
    complain(QCoreApplication::translate(
            "main", "No service could be loaded from %1. Name a folder with service files with --services.")
                     .arg(folders.join(QStringLiteral(", "))));
    return false;
}

} // namespace uiutils::apps
