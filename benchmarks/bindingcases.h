#pragma once

#include "case.h"

namespace bench {

QVector<Result> createCases(int runs);
QVector<Result> updateCases(int runs);
QVector<Result> contextCases(int runs);
QVector<Result> moduleCases(int runs);

/// CPU microseconds per item until `items` replicas of an object with an item's properties are ready for use,
/// in a program that is their source too; NaN when that does not come about.
double replicaMicroseconds(int runs, int items);

} // namespace bench
