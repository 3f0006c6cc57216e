#pragma once

#include <QVector>

namespace uiutils::demo {

/// Statistics of a series of samples, in the unit of the samples. All zero for an empty series.
struct Statistics
{
    int count = 0;
    double minimum = 0;
    /// The middle sample by size, or the mean of the middle two.
    double median = 0;
    double maximum = 0;
    /// Mean of the absolute differences of neighbouring samples; zero for fewer than two.
    double jitter = 0;
};

/// Computes the statistics of samples in the order in which they were taken.
Statistics statisticsOf(const QVector<double>& samples);

} // namespace uiutils::demo
