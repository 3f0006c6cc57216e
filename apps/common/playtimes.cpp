#include "common/playtimes.h"

#include <QCoreApplication>

namespace uiutils::apps {

namespace {

/// Nothing for what is no number from `least` to `most`.
std::optional<double> numberIn(const QString& text, double least, double most)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    return isNumber && number >= least && number <= most ? std::optional<double>(number) : std::nullopt;
}

} // namespace

std::optional<qint64> millisecondsOf(const QString& seconds)
{
    constexpr double tenYears = 10.0 * 366 * 24 * 3600;
    const std::optional<double> number = numberIn(seconds, 0, tenYears);
    return number ? std::optional<qint64>(qRound64(*number * 1000)) : std::nullopt;
}

PlayTimes playTimes(const QString& from, const QString& speed)
{
    PlayTimes times;
    const std::optional<qint64> start = millisecondsOf(from);
    const std::optional<double> factor = numberIn(speed, 0.001, 1e6);
    if (!start)
        times.problem = QCoreApplication::translate("CommandLine", "--from needs a number of seconds.");
    else if (!factor)
        times.problem = QCoreApplication::translate("CommandLine", "--speed needs a number from 0.001 to 1000000.");
    times.fromMs = start.value_or(times.fromMs);
    times.speed = factor.value_or(times.speed);
    return times;
}

} // namespace uiutils::apps
