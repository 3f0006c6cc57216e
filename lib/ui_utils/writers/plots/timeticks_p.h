#pragma once

#include "writers/plots/interval_p.h"

#include <QLocale>
#include <QString>
#include <QVector>

namespace uiutils {

/// The round times of an axis, in seconds, and how they read: durations as "2 min 30 s", points in time as local dates
/// and times of day.
class TimeTicks
{
public:
    enum Kind { Duration, Date };

    /// Whether times of the interval can be said in words: not below a second, not beyond what calendars hold.
    static bool canShow(const Interval& seconds, Kind kind);

    TimeTicks() = default;
    /// At most `maximum` ticks within an interval that can be shown; dates are seconds since 1970.
    TimeTicks(const Interval& seconds, Kind kind, int maximum);

    const QVector<double>& ticks() const { return m_ticks; }
    QString label(double tick, const QLocale& locale) const;
    /// What the labels leave out: the day of times of day, the year of days. Empty if nothing is missing.
    QString note(const QLocale& locale) const;

private:
    bool addMultiples(double step, double offset);
    bool addHours(int hours);
    bool addDays(int days);
    bool addMonths(int months);
    bool add(double tick);
    QString durationLabel(double seconds, const QLocale& locale) const;
    QString dateLabel(double seconds, const QLocale& locale) const;
    bool isOneDay() const;

    Interval m_range;
    Kind m_kind = Duration;
    int m_maximum = 0;
    // In seconds; nominal for months.
    double m_step = 1;
    QVector<double> m_ticks;
};

} // namespace uiutils
