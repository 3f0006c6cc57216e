#pragma once

#include <QString>
#include <QVector>

#include <functional>

namespace bench {

/// What one case came to.
struct Result
{
    QString name;
    /// What `ours` and `floor` are, for the reader of the table.
    QString unit;
    double ours = 0;
    double floor = 0;
    /// What the ratio ours / floor is to stay below; 0 where none is set.
    double limit = 0;

    double ratio() const { return floor > 0 ? ours / floor : 0; }
};

struct Timing
{
    /// CPU milliseconds of this process: the median of the runs.
    double ours = 0;
    double floor = 0;
};

/// CPU milliseconds of this process that `run` takes.
double measured(const std::function<void()>& run);

/// Runs the two in turn, once unmeasured and then `runs` times measured.
Timing interleaved(int runs, const std::function<void()>& ours, const std::function<void()>& floor);
/// The same for runs of which only a part counts: each tells what it measured.
Timing interleavedParts(int runs, const std::function<double()>& ours, const std::function<double()>& floor);

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
