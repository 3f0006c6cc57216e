#pragma once

#include <QString>

#include <optional>

namespace uiutils::apps {

// Numbers of command lines about what is played.

/// The milliseconds of a number of seconds from 0 to ten years, such as "12.5"; nothing for any other text.
std::optional<qint64> millisecondsOf(const QString& seconds);

/// From which moment and how many times faster a recording is played, by the options --from and --speed.
struct PlayTimes
{
    qint64 fromMs = 0;
    /// 0.001 to 1000000.
    double speed = 1;
    /// What is wrong with the values of the options, for the user; empty when they are good.
    QString problem;
};
PlayTimes playTimes(const QString& from, const QString& speed);

} // namespace uiutils::apps
