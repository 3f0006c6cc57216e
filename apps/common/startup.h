#pragma once

#include <QString>
#include <QStringList>

namespace kiv::embedded {
class EmbeddedBackend;
}

namespace uiutils::apps {

constexpr int exitDone = 0;
constexpr int exitFailed = 1;
constexpr int exitMisused = 2;

/// Says on standard error, behind the program's name, what went wrong. Returns the exit code.
int complain(const QString& text, int exitCode = exitFailed);

/// Publishes the services of the folders, with the settings that are kept below `root`, and complains of what could not be
/// used. Returns false, having complained, when there is no service at all.
bool loadServices(kiv::embedded::EmbeddedBackend& backend, const QStringList& folders, const QString& root);

} // namespace uiutils::apps
