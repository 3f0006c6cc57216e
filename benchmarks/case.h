#pragma once

#include "rooms.h"
#include "timing.h"

namespace bench {

QVector<Result> bindingCases(int runs);
QVector<Result> documentCases(int runs);
QVector<Result> htmlCases(int runs);
QVector<Result> xmlCases(int runs);
QVector<Result> pdfCases(int runs);
QVector<Result> plotCases(int runs);
QVector<Result> textCases(int runs);
QVector<Result> localCases(int runs);
QVector<Result> pdfFileCases(int runs);
QVector<Result> reportCases(int runs);

} // namespace bench
