#pragma once

#include "itemstore_p.h"

namespace kiv::embedded {

// The actions that every service with a manifest has, listed or not: the manifest's id with its first and last word
// replaced.
inline const QLatin1String applyConfigAction("applyconfig");
inline const QLatin1String saveConfigAction("saveconfig");

/// The action with that id; null when it is not an item of the service.
ItemStore::StatePtr listedAction(const ItemStore& items, const QString& id);

/// Whether the id is that of `action` for one of the service's manifests.
bool isManifestAction(const ItemStore& items, const QString& id, QLatin1String action);

/// Whether the service has an action with that id, listed or through its manifest.
bool hasAction(const ItemStore& items, const QString& id);

} // namespace kiv::embedded
