#pragma once

#include <QDateTime>
#include <QString>

class ReportMetadata;

/// What the metadata record of a saved report says.
namespace uiutils {

/// Empties the record and makes it that of the report at the instrument path: a result in this format, made at `time`.
void describeReport(ReportMetadata* record, const QString& path, const QString& format, const QDateTime& time);

/// Removes the record of the report at the instrument path, if there is one. One that stays is told in the log.
void removeReportRecord(const QString& path);

/// Adds what the job manager says of the active job, under "jobId", and the kind of test, under "testType" and
/// "testLabel"; what is empty is left out.
void addJobTest(ReportMetadata* record, const QString& testType, const QString& testLabel);

} // namespace uiutils
