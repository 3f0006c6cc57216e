#pragma once

#include "common/complaint.h"

#include <QString>
#include <QStringList>

namespace kiv::embedded {
class EmbeddedBackend;
}

namespace uiutils::apps {

/// Makes `root`, from a command line or the environment, the folder that stands for the instrument's disk. Returns
/// false, after an error message, when its name is not written in the encoding of file names: it would become the name
/// of another folder.
bool useRoot(const QString& root);

/// Publishes the services of the folders, with the settings stored below `root`, and prints an error for each file that
/// could not be used. Returns false, after an error message, when there is no service at all.
bool loadServices(kiv::embedded::EmbeddedBackend& backend, const QStringList& folders, const QString& root);

} // namespace uiutils::apps
