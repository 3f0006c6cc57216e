#include "ui_host/describedservices_p.h"

#include "base/ownplace_p.h"
#include "base/paths_p.h"

#include "simulation/simulation_p.h"

#include <embedded/embeddedbackend.h>

#include <QCoreApplication>

namespace uiutils {

namespace {

kiv::simulation::Simulated chosenSimulation(QStringList* problems)
{
    const QString name = qEnvironmentVariable("KIV_SIMULATION");
    if (name == QLatin1String("off"))
        return kiv::simulation::Simulated::Actions;
    if (!name.isEmpty() && name != QLatin1String("on"))
        *problems += QCoreApplication::translate(
                "Host", "KIV_SIMULATION is \"%1\". Set it to \"on\" or \"off\", or leave it out.")
                             .arg(name);
    return kiv::simulation::Simulated::All;
}

} // namespace

std::optional<PlatformKind> chosenPlatform(PlatformKind standard, QString* problem)
{
    const QString name = qEnvironmentVariable("KIV_PLATFORM");
    if (!qEnvironmentVariableIsSet("KIV_PLATFORM"))
        return standard;
    if (name == QLatin1String("bus"))
        return PlatformKind::Bus;
    if (name == QLatin1String("embedded"))
        return PlatformKind::Embedded;
    *problem = QCoreApplication::translate(
            "Host", "KIV_PLATFORM is \"%1\". Set it to \"embedded\" or \"bus\", or leave it out.")
                       .arg(name);
    return std::nullopt;
}

QStringList defaultServiceFolders()
{
    const QStringList fromEnvironment = kiv::embedded::EmbeddedBackend::foldersFromEnvironment();
    if (!fromEnvironment.isEmpty())
        return fromEnvironment;
    const QString installed = installedFolder(QStringLiteral(UIUTILS_SHARED_FOLDER "/services"));
    return installed.isEmpty() ? QStringList() : QStringList(installed);
}

bool loadServices(
        kiv::embedded::EmbeddedBackend& backend, const QStringList& folders, const QString& root, QStringList* problems)
{
    backend.setStateFolder(root + paths::serviceSettings);
    kiv::simulation::simulate(backend, chosenSimulation(problems));
    *problems += backend.loadFolders(folders);
    if (!backend.serviceNames().isEmpty())
        return true;
    *problems += QCoreApplication::translate("Host",
            "No service could be loaded from %1. Name a folder with service files, with --services where the program "
            "has that option, or with KIV_SERVICES.")
                         .arg(folders.join(QStringLiteral(", ")));
    return false;
}

} // namespace uiutils
