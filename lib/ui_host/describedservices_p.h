#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace kiv::embedded {
class EmbeddedBackend;
}

namespace uiutils {

/// Where services live: in this process, or in others.
enum class PlatformKind { Embedded, Bus };

/// What KIV_PLATFORM names, or `standard` when it is not set. Returns nothing, with the reason in `problem`, when it
/// names no platform.
std::optional<PlatformKind> chosenPlatform(PlatformKind standard, QString* problem);

/// The folders of the service files unless the user names some: those in KIV_SERVICES, else the installed ones.
QStringList defaultServiceFolders();

/// Publishes the services of the folders, with the settings stored below `root`, and adds to `problems` what could not
/// be used. Returns false when there is no service at all.
bool loadServices(kiv::embedded::EmbeddedBackend& backend, const QStringList& folders, const QString& root,
        QStringList* problems);

} // namespace uiutils
