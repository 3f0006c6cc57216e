#include "common/playtimes.h"

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

std::optional<double> speedOf(const QString& factor)
{
    return numberIn(factor, 0.001, 1e6);
}

} // namespace uiutils::apps
