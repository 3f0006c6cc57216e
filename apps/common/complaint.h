#pragma once

#include <QString>

namespace uiutils::apps {

constexpr int exitDone = 0;
constexpr int exitFailed = 1;
constexpr int exitMisused = 2;

/// Prints the error on standard error, after the program's name. Returns the exit code.
int complain(const QString& text, int exitCode = exitFailed);

} // namespace uiutils::apps
