#pragma once

#include "plan.h"

#include <QString>

#include <utility>

class ReportTemplate;

namespace uiutils::convert {

/// The last message of a run that a signal stopped, and the exit status.
int stoppedBy(int signal, int written, const Plan& plan);

/// Carries out a plan: reads each document once, checks its layout and writes its targets. Every failure is printed
/// when it happens and ends only its own document or file; a signal stops the run between two files.
class Conversion
{
public:
    /// `scratchFolder` holds standard input while it is read.
    Conversion(const Plan& plan, const Options& options, const QString& scratchFolder);

    /// Converts every document. Returns the program's exit status.
    int run();
    /// Converts one. False if any of its files could not be written.
    bool convert(const Job& job);
    /// The number of files that were written since the last call.
    int takeWritten() { return std::exchange(m_written, 0); }

private:
    void writeTargets(const Job& job);
    bool read(const Job& job, ReportTemplate& report);
    bool readStandardInput(const Job& job, ReportTemplate& report);
    bool hasAcceptableLayout(const Job& job, const ReportTemplate& report);
    void writeTarget(const Target& target, const ReportTemplate& report);
    bool write(const QString& path, const QByteArray& bytes);
    bool writeFile(const QString& path, const QByteArray& bytes, QString* error) const;
    void announce(const QString& name);
    bool fail(const QString& message);
    bool isStopped();

    const Plan& m_plan;
    const Options& m_options;
    QString m_scratchFolder;
    int m_written = 0;
    bool m_hasFailed = false;
    /// The signal that stopped the run, or 0.
    int m_signal = 0;
};

} // namespace uiutils::convert
