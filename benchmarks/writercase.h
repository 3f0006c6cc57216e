#pragma once

#include "case.h"

class ReportTemplate;

namespace bench {

/// A report of one section with one table: a label, a value and its attributes in each row.
void buildReport(ReportTemplate& report, int rows, int status);

/// Puts the icons into the instrument's root at `root`; ends the program when that fails.
void installIcons(const QString& root);

/// A writer of reports, as the benchmarks see it.
struct Writer
{
    /// "HTML page", "XML text".
    QString product;
    /// Makes the text that is measured against its own tokens.
    std::function<QString(const ReportTemplate& report)> write;
    /// The part of the text that is the same on every run.
    std::function<QString(const QString& text)> lasting;
    /// How many times as long as the stream writer it may take.
    double limit = 1.3;
};

/// Time of the writer against a bare stream writer that emits the same tokens, and the peak memory that the text takes
/// against its size. Ends the program when the floor does not write the text that it stands for.
QVector<Result> writerCases(const Writer& writer, int runs, int rows);

} // namespace bench
