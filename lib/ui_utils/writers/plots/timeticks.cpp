#include "writers/plots/timeticks_p.h"

#include <QCoreApplication>
#include <QDateTime>

namespace uiutils {

namespace {

constexpr double minute = 60;
constexpr double hour = 60 * minute;
constexpr double day = 24 * hour;
constexpr double month = 30 * day;
constexpr int monthsOfAYear = 12;
// The year 9999, and as much for durations.
constexpr double largest = 2.5e11;

constexpr double steps[] = {0.1, 0.2, 0.5, 1, 2, 5, 10, 15, 30, minute, 2 * minute, 5 * minute, 10 * minute,
        15 * minute, 30 * minute, hour, 2 * hour, 3 * hour, 6 * hour, 12 * hour};
constexpr int steppedDays[] = {1, 2, 7, 14};
constexpr int steppedMonths[] = {1, 3, 6};
constexpr int steppedYears[] = {1, 2, 5};

QDateTime timeOf(double seconds)
{
    return QDateTime::fromMSecsSinceEpoch(qint64(std::floor(seconds * 1000 + 0.5)));
}

double secondsOf(const QDate& date)
{
    return double(date.startOfDay().toMSecsSinceEpoch()) / 1000;
}

/// The sum of words for seconds, largest first: days, hours, minutes.
struct DurationPart
{
    double seconds;
    const char* pattern;
};
constexpr DurationPart durationParts[] = {{day, QT_TRANSLATE_NOOP("PlotImage", "%1 d")},
        {hour, QT_TRANSLATE_NOOP("PlotImage", "%1 h")}, {minute, QT_TRANSLATE_NOOP("PlotImage", "%1 min")}};

} // namespace

bool TimeTicks::canShow(const Interval& seconds, Kind kind)
{
    // Calendars differ on what was before the year 1.
    const double first = kind == Date ? -6e10 : -largest;
    return seconds.extent() >= 1 && seconds.low > first && seconds.high < largest;
}

TimeTicks::TimeTicks(const Interval& seconds, Kind kind, int maximum)
    : m_range(seconds)
    , m_kind(kind)
    , m_maximum(maximum)
{
    const double offset = kind == Date ? timeOf(seconds.low).offsetFromUtc() : 0;
    for (const double step : steps) {
        const bool isLocal = kind == Date && step > hour;
        if (isLocal ? addHours(int(step / hour)) : addMultiples(step, offset))
            return;
    }
    for (const int days : steppedDays) {
        if (kind == Date ? addDays(days) : addMultiples(days * day, 0))
            return;
    }
    for (const int months : steppedMonths) {
        if (kind == Date && addMonths(months))
            return;
    }
    for (int power = 1;; power *= 10) {
        for (const int digit : steppedYears) {
            if (kind == Date ? addMonths(digit * power * monthsOfAYear) : addMultiples(10.0 * digit * power * day, 0))
                return;
        }
    }
}

/// Returns false if the axis is full.
bool TimeTicks::add(double tick)
{
    if (tick < m_range.low || tick > m_range.high)
        return true;
    m_ticks += tick;
    return m_ticks.size() <= m_maximum;
}

bool TimeTicks::addMultiples(double step, double offset)
{
    m_step = step;
    m_ticks.clear();
    for (double n = std::ceil((m_range.low + offset) / step); n * step - offset <= m_range.high; ++n) {
        if (!add(n * step - offset))
            return false;
    }
    return true;
}

/// Full hours of the clock, also behind the night in which it is changed.
bool TimeTicks::addHours(int hours)
{
    m_step = hours * hour;
    m_ticks.clear();
    QDate date = timeOf(m_range.low).date();
    for (; secondsOf(date) <= m_range.high; date = date.addDays(1)) {
        for (int clock = 0; clock < 24; clock += hours) {
            const double tick = double(QDateTime(date, QTime(clock, 0)).toMSecsSinceEpoch()) / 1000;
            // An hour that is left out is the next one.
            if ((m_ticks.isEmpty() || tick > m_ticks.constLast()) && !add(tick))
                return false;
        }
    }
    return true;
}

/// Midnights, also where a day has 23 hours.
bool TimeTicks::addDays(int days)
{
    m_step = days * day;
    m_ticks.clear();
    QDate date = timeOf(m_range.low).date();
    date = date.addDays(-(date.toJulianDay() % days));
    for (; secondsOf(date) <= m_range.high; date = date.addDays(days)) {
        if (!add(secondsOf(date)))
            return false;
    }
    return true;
}

bool TimeTicks::addMonths(int months)
{
    m_step = months * month;
    m_ticks.clear();
    const QDate low = timeOf(m_range.low).date();
    const int first = low.year() * monthsOfAYear + low.month() - 1;
    QDate date(low.year(), low.month(), 1);
    for (date = date.addMonths(-(first % months)); secondsOf(date) <= m_range.high; date = date.addMonths(months)) {
        if (!add(secondsOf(date)))
            return false;
    }
    return true;
}

QString TimeTicks::label(double tick, const QLocale& locale) const
{
    return m_kind == Duration ? durationLabel(tick, locale) : dateLabel(tick, locale);
}

QString TimeTicks::durationLabel(double seconds, const QLocale& locale) const
{
    QStringList words;
    // Tenths, so that no part is lost by rounding.
    double left = std::round(std::abs(seconds) * 10) / 10;
    for (const DurationPart& part : durationParts) {
        const double count = std::floor(left / part.seconds);
        left -= count * part.seconds;
        if (count > 0)
            words += QCoreApplication::translate("PlotImage", part.pattern).arg(locale.toString(count, 'f', 0));
    }
    if (left > 0.01 || words.isEmpty()) {
        const QString number = locale.toString(left, 'f', m_step < 1 ? 1 : 0);
        words += QCoreApplication::translate("PlotImage", "%1 s").arg(number);
    }
    const QString sign = seconds < 0 ? QString(locale.negativeSign()) : QString();
    return sign + words.join(QLatin1Char(' '));
}

bool TimeTicks::isOneDay() const
{
    return timeOf(m_range.low).date() == timeOf(m_range.high).date();
}

QString TimeTicks::dateLabel(double seconds, const QLocale& locale) const
{
    const QDateTime time = timeOf(seconds);
    if (m_step >= monthsOfAYear * month)
        return QString::number(time.date().year());
    if (m_step >= month)
        return locale.toString(time, QStringLiteral("MMM yyyy"));
    if (m_step >= day)
        return locale.toString(time, QStringLiteral("d MMM"));
    const QString clock = m_step < 1 ? QStringLiteral("HH:mm:ss.z")
            : m_step < minute        ? QStringLiteral("HH:mm:ss")
                                     : QStringLiteral("HH:mm");
    return locale.toString(time, isOneDay() ? clock : QStringLiteral("d MMM ") + clock);
}

QString TimeTicks::note(const QLocale& locale) const
{
    if (m_kind == Duration || m_step >= month)
        return {};
    const auto text = [&](double time) { return locale.toString(timeOf(time).date(), QStringLiteral("d MMM yyyy")); };
    return isOneDay() ? text(m_range.low)
                      : QCoreApplication::translate("PlotImage", "%1 to %2").arg(text(m_range.low), text(m_range.high));
}

} // namespace uiutils
