#include "report/nsreport.h"

#include <QRegularExpression>
#include <QTimeZone>

#include <cmath>
#include <optional>

namespace {

std::optional<int> offsetSeconds(const QString& zone)
{
    static const QRegularExpression form(QStringLiteral("^([+-])([0-9]{2})(?::?([0-5][0-9]))?\\z"));
    const QRegularExpressionMatch match = form.match(zone);
    const int minutes = match.captured(2).toInt() * 60 + match.captured(3).toInt();
    if (!match.hasMatch() || minutes > 14 * 60)
        return std::nullopt;
    return (match.captured(1) == QLatin1String("-") ? -60 : 60) * minutes;
}

} // namespace

bool NSReport::isGeoLocationValid(double latitude, double longitude)
{
    // Comparisons with NaN are false.
    const bool isOnEarth = std::abs(latitude) <= 90 && std::abs(longitude) <= 180;
    return isOnEarth && (latitude != 0 || longitude != 0);
}

QDateTime NSReport::adjustDateTimeToTimeZone(const QDateTime& dateTime, const QString& zone)
{
    if (!dateTime.isValid())
        return dateTime;
    if (const auto offset = offsetSeconds(zone))
        return dateTime.toOffsetFromUtc(*offset);
    const QTimeZone timeZone(zone.toUtf8());
    // An empty id would mean the system's zone.
    return !zone.isEmpty() && timeZone.isValid() ? dateTime.toTimeZone(timeZone) : dateTime;
}
