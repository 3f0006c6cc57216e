#pragma once

#include <QDateTime>
#include <QString>

class ReportMetadata;

/// The contents of the metadata record of a saved report.
namespace uiutils {

/// Clears the record and makes it that of the report at the instrument path: a result in this format, made at `time`.
void describeReport(ReportMetadata* record, const QString& path, const QString& format, const QDateTime& time);

/// Reads the record of the report at the instrument path. False, with a line in the log, if there is none that can be
/// read or its drive is not there.
bool readReportRecord(ReportMetadata* record, const QString& path);

/// Deletes the record of the report at the instrument path, if there is one. If that fails, the log has a line.
void removeReportRecord(const QString& path);

/// Adds the ID of the active job, as the job manager gives it, under "jobId", and the kind of test under "testType" and
/// "testLabel". Empty values are left out.
void addJobTest(ReportMetadata* record, const QString& testType, const QString& testLabel);

} // namespace uiutils
