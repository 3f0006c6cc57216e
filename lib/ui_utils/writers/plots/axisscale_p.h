#pragma once

#include "writers/plots/timeticks_p.h"

#include <QLocale>
#include <QString>
#include <QVector>

namespace uiutils {

/// The arithmetic of a plot's axis: which values it spans, where its round ticks are and how they are labelled.
///
/// Whatever interval it is given (empty, of no extent, at the limits of a double), it spans a proper one.
class AxisScale
{
public:
    /// Durations and dates are in seconds; intervals that words cannot say are linear.
    enum Kind { Linear, Logarithmic, Duration, Date };
    /// Whether the axis ends with the data, or at the next tick beyond the data.
    enum Ends { AtData, AtTicks };

    /// An axis for `data` with at most `maximumTicks` ticks; a maximum below three counts as three. A logarithmic axis
    /// takes only positive values; an axis of times ends with its data.
    AxisScale(Interval data, Kind kind, Ends ends, int maximumTicks);

    double low() const { return m_low; }
    double high() const { return m_high; }

    /// Whether the labels say times, so that the axis needs no unit.
    bool isOfTime() const { return m_kind == Duration || m_kind == Date; }

    /// Where `value` is between the ends, 0 to 1; what is beyond an end is there. NaN for a value that a logarithmic
    /// axis cannot show.
    double position(double value) const;

    /// The round values that get a label, in ascending order.
    const QVector<double>& ticks() const { return m_ticks; }
    /// Further grid lines between the ticks of a logarithmic axis.
    const QVector<double>& minorTicks() const { return m_minorTicks; }

    /// A tick's value as users of `locale` read it, with enough decimals to distinguish the ticks.
    QString label(double tick, const QLocale& locale) const;
    /// What the labels have in common and leave out, such as a day; mostly empty.
    QString note(const QLocale& locale) const { return isOfTime() ? m_times.note(locale) : QString(); }

private:
    void scaleLinearly(Interval data, Ends ends, int maximumTicks);
    void scaleTimes(Interval data, int maximumTicks);
    void scaleLogarithmically(Interval data, Ends ends, int maximumTicks);
    bool addRoundTicks(Interval data, Ends ends, int maximumTicks);
    bool addDecades(Interval data, Ends ends, int maximumTicks);

    Kind m_kind;
    double m_low = 0;
    double m_high = 1;
    double m_step = 1;
    // A logarithmic axis that is too short for its own round values has ticks one step apart.
    bool m_hasEvenTicks = false;
    TimeTicks m_times;
    QVector<double> m_ticks;
    QVector<double> m_minorTicks;
};

} // namespace uiutils
