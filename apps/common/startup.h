#pragma once

#include "common/complaint.h"

#include <QString>
#include <QStringList>

namespace kiv::embedded {
class EmbeddedBackend;
}

namespace uiutils::apps {

/// Publishes the services of the folders, with the settings that are kept below `root`, and complains of what could not
/// be used. Returns false, having complained, when there is no service at all.
bool loadServices(kiv::embedded::EmbeddedBackend& backend, const QStringList& folders, const QString& root);

} // namespace uiutils::apps
