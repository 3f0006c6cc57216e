#pragma once

#include "benchmarks/rooms.h"

namespace bench {

QVector<Result> latencyCases(int runs);
QVector<Result> loadCases(int runs);
QVector<Result> recordCases(int runs);
QVector<Result> startCases(int runs);
QVector<Result> memoryCases(int runs);

} // namespace bench
