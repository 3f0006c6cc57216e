#pragma once

#include "core/uiutils_export.h"

#include <QDateTime>
#include <QString>

/// What reports and their controllers share.
namespace NSReport {

/// The formats that a report can be saved in; ALL means every format that is applicable.
enum ReportFormat {
    REPORT_FORMAT_PDF = 0,
    REPORT_FORMAT_XML,
    REPORT_FORMAT_HTML,
    REPORT_FORMAT_TEXT,
    REPORT_FORMAT_JSON,
    REPORT_FORMAT_ALL
};

/// The format that Report::offerCsv() adds to these.
constexpr int csvFormat = 99;

/// The formats of applications have values from this one on, see Report::addFormat().
constexpr int firstOwnFormat = 100;

/// Whether the two, in degrees, are a place on earth: -90 to 90 and -180 to 180. 0, 0 is not valid, because receivers
/// without a fix report it.
UIUTILS_EXPORT bool isGeoLocationValid(double latitude, double longitude);

/// The same moment in a time zone: an IANA id ("Europe/Oslo") or an offset of at most 14 hours ("+02:00", "-0330",
/// "+02"). Returns `dateTime` unchanged if it is invalid or the zone is not known.
UIUTILS_EXPORT QDateTime adjustDateTimeToTimeZone(const QDateTime& dateTime, const QString& zone);

} // namespace NSReport
