#pragma once

#include <QString>

#include <optional>

namespace uiutils::apps {

// Numbers of command lines about what is played.

/// The milliseconds of a number of seconds from 0 to ten years, such as "12.5"; nothing for any other text.
std::optional<qint64> millisecondsOf(const QString& seconds);

/// How many times faster something is played: 0.001 to 1000000. Nothing for any other text.
std::optional<double> speedOf(const QString& factor);

} // namespace uiutils::apps
