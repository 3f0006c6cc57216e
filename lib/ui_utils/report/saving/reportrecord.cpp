#include "report/saving/reportrecord_p.h"

#include "base/paths_p.h"
#include "document/reportmetadata.h"
#include "instrument/drives_p.h"
#include "instrument/job_p.h"

#include <QFile>
#include <QFileInfo>

namespace uiutils {

namespace {

/// "2026-03-05T14:05:09+01:00". For an offset of zero Qt would write a letter.
QString timeStamp(const QDateTime& time)
{
    QString stamp = time.toOffsetFromUtc(time.offsetFromUtc()).toString(Qt::ISODate);
    if (stamp.endsWith(QLatin1Char('Z')))
        stamp.replace(stamp.size() - 1, 1, QStringLiteral("+00:00"));
    return stamp;
}

void locate(ReportMetadata* record, const QString& path)
{
    const int nameStart = path.lastIndexOf(QLatin1Char('/')) + 1;
    record->updateMetadataPathBase(path.left(nameStart));
    record->setMetadataName(path.mid(nameStart));
}

} // namespace

void describeReport(ReportMetadata* record, const QString& path, const QString& format, const QDateTime& time)
{
    record->clear();
    record->setType(QStringLiteral("result"));
    record->setFormat(format);
    record->setTimeStamp(timeStamp(time));
    locate(record, path);
}

bool readReportRecord(ReportMetadata* record, const QString& path)
{
    locate(record, path);
    return instrument::isDriveThere(path) && record->loadFromDisk();
}

void removeReportRecord(const QString& path)
{
    ReportMetadata record;
    locate(&record, path);
    const QString place = onDisk(record.metadataFilePath());
    if (QFileInfo::exists(place) && !QFile::remove(place))
        qWarning("The record %s cannot be deleted.", qUtf8Printable(place));
}

void addJobTest(ReportMetadata* record, const QString& testType, const QString& testLabel)
{
    const struct
    {
        QLatin1String key;
        QString value;
    } pairs[] = {{QLatin1String("jobId"), instrument::jobFacts().id},
            {QLatin1String("testType"), testType}, {QLatin1String("testLabel"), testLabel}};
    for (const auto& pair : pairs) {
        if (!pair.value.isEmpty())
            record->setInfo(pair.key, pair.value);
    }
}

} // namespace uiutils
