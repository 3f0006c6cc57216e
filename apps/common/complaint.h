#pragma once

#include <QString>

namespace uiutils::apps {

constexpr int exitDone = 0;
constexpr int exitFailed = 1;
constexpr int exitMisused = 2;

/// Says on standard error, behind the program's name, what went wrong. Returns the exit code.
int complain(const QString& text, int exitCode = exitFailed);

} // namespace uiutils::apps
