#pragma once

#include "itemstore_p.h"

namespace kiv::embedded {

// The actions that every service with a manifest has, listed or not: the manifest's id with its two words replaced.
inline const QLatin1String applyConfigAction("applyconfig");
inline const QLatin1String saveConfigAction("saveconfig");

/// The action of that id; null when no item of the service is one.
ItemStore::StatePtr listedAction(const ItemStore& items, const QString& id);

/// Whether the id is that of `action` for a manifest that the service has.
bool isManifestAction(const ItemStore& items, const QString& id, QLatin1String action);

/// Whether the service has an action of that id, listed or through its manifest.
bool hasAction(const ItemStore& items, const QString& id);

} // namespace kiv::embedded
