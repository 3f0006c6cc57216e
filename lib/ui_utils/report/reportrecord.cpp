#include "report/reportrecord_p.h"

#include "core/itemids.h"
#include "document/reportmetadata.h"
#include "report/reportdestinations_p.h"

namespace uiutils {

namespace {

/// "2026-03-05T14:05:09+01:00". Where the offset is none, Qt would write a letter for it.
QString timeStamp(const QDateTime& time)
{
    QString stamp = time.toOffsetFromUtc(time.offsetFromUtc()).toString(Qt::ISODate);
    if (stamp.endsWith(QLatin1Char('Z')))
        stamp.replace(stamp.size() - 1, 1, QStringLiteral("+00:00"));
    return stamp;
}

} // namespace

void describeReport(ReportMetadata* record, const QString& path, const QString& format, const QDateTime& time)
{
    const int nameStart = path.lastIndexOf(QLatin1Char('/')) + 1;
    record->clear();
    record->setType(QStringLiteral("result"));
    record->setFormat(format);
    record->setTimeStamp(timeStamp(time));
    record->updateMetadataPathBase(path.left(nameStart));
    record->setMetadataName(path.mid(nameStart));
}

void addJobTest(ReportMetadata* record, const QString& testType, const QString& testLabel)
{
    const struct
    {
        QLatin1String key;
        QString value;
    } pairs[] = {{QLatin1String("jobId"), baseManagerValue(itemids::jobId).toString()},
            {QLatin1String("testType"), testType}, {QLatin1String("testLabel"), testLabel}};
    for (const auto& pair : pairs) {
        if (!pair.value.isEmpty())
            record->setInfo(pair.key, pair.value);
    }
}

} // namespace uiutils
