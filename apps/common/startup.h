#pragma once

#include "common/complaint.h"

#include <QString>
#include <QStringList>

namespace kiv::embedded {
class EmbeddedBackend;
}

namespace uiutils::apps {

/// Makes `root`, of a command line or the environment, the folder that stands for the instrument's disk. Returns false,
/// having complained, when its name is not written in the encoding of file names: then it has become another one's.
bool useRoot(const QString& root);

/// Publishes the services of the folders, with the settings that are kept below `root`, and complains of what could not
/// be used. Returns false, having complained, when there is no service at all.
bool loadServices(kiv::embedded::EmbeddedBackend& backend, const QStringList& folders, const QString& root);

} // namespace uiutils::apps
