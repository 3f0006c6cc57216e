#include "statistics.h"

#include <algorithm>
#include <cmath>

namespace uiutils::demo {

namespace {

double medianOf(QVector<double> samples)
{
    const auto middle = samples.begin() + samples.size() / 2;
    std::nth_element(samples.begin(), middle, samples.end());
    if (samples.size() % 2 == 1)
        return *middle;
    return (*std::max_element(samples.begin(), middle) + *middle) / 2;
}

double jitterOf(const QVector<double>& samples)
{
    if (samples.size() < 2)
        return 0;
    double sum = 0;
    for (int i = 1; i < samples.size(); ++i)
        sum += std::abs(samples.at(i) - samples.at(i - 1));
    return sum / (samples.size() - 1);
}

} // namespace

Statistics statisticsOf(const QVector<double>& samples)
{
    if (samples.isEmpty())
        return {};
    const auto ends = std::minmax_element(samples.begin(), samples.end());
    Statistics result;
    result.count = samples.size();
    result.minimum = *ends.first;
    result.median = medianOf(samples);
    result.maximum = *ends.second;
    result.jitter = jitterOf(samples);
    return result;
}

} // namespace uiutils::demo
