#include "columns.h"

#include "writers/plots/axisscale_p.h"
#include "writers/plots/curvepoints_p.h"
#include "writers/plots/plotdata_p.h"

#include <QDateTime>

#include <cmath>
#include <limits>

#include <time.h>

using namespace uiutils;

namespace {

constexpr double huge = std::numeric_limits<double>::max();
constexpr double tiny = std::numeric_limits<double>::denorm_min();

Interval interval(const QVector<double>& values)
{
    Interval interval;
    for (const double value : values)
        interval.include(value);
    return interval;
}

QStringList labels(const AxisScale& scale)
{
    QStringList labels;
    for (const double tick : scale.ticks())
        labels += scale.label(tick, QLocale(QLocale::English, QLocale::UnitedStates));
    return labels;
}

PlotData oneCurve(const QVector<QPointF>& points, AxisScale::Kind yKind = AxisScale::Linear)
{
    QVariantList xs;
    QVariantList ys;
    for (const QPointF& point : points) {
        xs += point.x();
        ys += point.y();
    }
    PlotData data;
    data.axes[LeftSide].kind = yKind;
    addCurve(data, {}, xs, ys);
    return data;
}

QVector<QVector<QPointF>> stretchesOf(const PlotData& data, int columns)
{
    const AxisScale x(data.xExtent(), data.xKind, AxisScale::AtData, 10);
    const AxisScale y(data.yExtent(LeftSide), data.axes[LeftSide].kind, AxisScale::AtData, 10);
    return visibleStretches(data.curves.first(), x, y, columns);
}

double secondsAt(const QString& time)
{
    return double(QDateTime::fromString(time, Qt::ISODate).toSecsSinceEpoch());
}

} // namespace

class PlotScaleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("TZ", "UTC");
        tzset();
    }

    void ticks_data()
    {
        addColumns<QVector<double>, int, int, int, QStringList>();
        using V = QVector<double>;
        const int linear = AxisScale::Linear;
        const int log = AxisScale::Logarithmic;
        const int ticks = AxisScale::AtTicks;
        const int data = AxisScale::AtData;
        const int duration = AxisScale::Duration;
        const int date = AxisScale::Date;
        const double monday = secondsAt("2026-03-02T08:50:00");
        QTest::newRow("tens") << V {0, 97} << linear << ticks << 6 << QStringList {"0", "20", "40", "60", "80", "100"};
        QTest::newRow("within the data") << V {3, 97} << linear << data << 6 << QStringList {"20", "40", "60", "80"};
        QTest::newRow("both signs") << V {-19.9, 5.2} << linear << ticks << 7
                                    << QStringList {"-20", "-15", "-10", "-5", "0", "5", "10"};
        QTest::newRow("thousands") << V {21141, 43281} << linear << ticks << 4
                                   << QStringList {"20,000", "30,000", "40,000", "50,000"};
        QTest::newRow("small") << V {0, 4e-8} << linear << ticks << 3 << QStringList {"0", "2e-08", "4e-08"};
        QTest::newRow("no data") << V {} << linear << ticks << 3 << QStringList {"0.0", "0.5", "1.0"};
        QTest::newRow("nothing finite") << V {qQNaN(), qInf(), -qInf()} << linear << ticks << 3
                                        << QStringList {"0.0", "0.5", "1.0"};
        QTest::newRow("decades") << V {0.002, 35} << log << ticks << 6
                                 << QStringList {"0.001", "0.01", "0.1", "1", "10", "100"};
        QTest::newRow("many decades") << V {1e-12, 1} << log << ticks << 5
                                      << QStringList {"1e-12", "1e-09", "1e-06", "1e-03", "1e+00"};
        QTest::newRow("plain up to a million") << V {0.001, 1e6} << log << ticks << 10
                                               << QStringList {"0.001", "0.01", "0.1", "1", "10", "100", "1,000",
                                                          "10,000", "100,000", "1,000,000"};
        QTest::newRow("too many round ones") << V {1.5, 14} << log << ticks << 4 << QStringList {"1", "10", "100"};
        QTest::newRow("round ones within the data") << V {0.9, 22} << log << data << 6
                                                    << QStringList {"1", "2", "5", "10", "20"};
        QTest::newRow("between two round ones") << V {2.1, 4.9} << log << data << 6
                                               << QStringList {"2.5", "3.0", "3.5", "4.0", "4.5"};
        QTest::newRow("within a decade") << V {3, 8} << log << ticks << 6 << QStringList {"2", "5", "10"};
        QTest::newRow("minutes") << V {0, 290} << duration << data << 6
                                 << QStringList {"0 s", "1 min", "2 min", "3 min", "4 min"};
        QTest::newRow("half minutes") << V {100, 215} << duration << data << 5
                                      << QStringList {"2 min", "2 min 30 s", "3 min", "3 min 30 s"};
        QTest::newRow("days and hours") << V {-1, 130000} << duration << data << 4 << QStringList {"0 s", "12 h", "1 d", "1 d 12 h"};
        QTest::newRow("many days") << V {0, 4e7} << duration << data << 5 << QStringList {"0 s", "100 d", "200 d", "300 d", "400 d"};
        QTest::newRow("shorter than a second") << V {0.1, 0.5} << duration << data << 6
                                               << QStringList {"0.1", "0.2", "0.3", "0.4", "0.5"};
        QTest::newRow("longer than calendars") << V {0, 1e15} << date << data << 3 << QStringList {"0", "5e+14", "1.0e+15"};
        QTest::newRow("clock") << V {monday, monday + 4000} << date << data << 5
                               << QStringList {"09:00", "09:15", "09:30", "09:45"};
        QTest::newRow("over midnight") << V {monday, monday + 90000} << date << data << 3
                                       << QStringList {"2 Mar 12:00", "3 Mar 00:00"};
        QTest::newRow("days") << V {monday, monday + 3 * 86400} << date << data << 4
                              << QStringList {"3 Mar", "4 Mar", "5 Mar"};
        QTest::newRow("months") << V {monday, monday + 100 * 86400} << date << data << 4
                                << QStringList {"Apr 2026", "May 2026", "Jun 2026"};
        QTest::newRow("years") << V {monday, monday + 5e8} << date << data << 4 << QStringList {"2030", "2035", "2040"};
        QTest::newRow("not positive") << V {-3, 0} << log << ticks << 6 << QStringList {"1", "10"};
    }
    void ticks()
    {
        const auto [data, kind, ends, maximum, expected] = currentRow<QVector<double>, int, int, int, QStringList>();
        const AxisScale scale(interval(data), AxisScale::Kind(kind), AxisScale::Ends(ends), maximum);
        QCOMPARE(labels(scale), expected);
    }

    /// Whatever its range, an axis is valid: ends in order, data within, few ticks, all within.
    void everyAxisIsProper()
    {
        const QVector<double> values {-huge, -1e300, -3.7e8, -1, -1e-9, -tiny, 0, tiny, 1e-300, 1e-9, 0.3, 1, 1 + 1e-15, 7,
                3.7e8, 3.7e8 + 1e-6, 1e300, huge};
        for (const double a : values) {
            for (const double b : values) {
                for (const auto kind : {AxisScale::Linear, AxisScale::Logarithmic, AxisScale::Duration, AxisScale::Date}) {
                    for (const auto ends : {AxisScale::AtData, AxisScale::AtTicks}) {
                        for (const int maximum : {-1, 2, 5, 40}) {
                            const AxisScale scale(interval({a, b}), kind, ends, maximum);
                            const QByteArray which = QString("%1 to %2, kind %3, ends %4, %5 ticks")
                                                             .arg(a).arg(b).arg(kind).arg(ends).arg(maximum).toUtf8();
                            QVERIFY2(std::isfinite(scale.low()) && std::isfinite(scale.high()), which);
                            QVERIFY2(scale.low() < scale.high(), which);
                            QVERIFY2(scale.ticks().size() <= qMax(maximum, 3), which);
                            QVERIFY2(kind != AxisScale::Logarithmic || scale.low() > 0, which);
                            for (const double tick : scale.ticks()) {
                                const double position = scale.position(tick);
                                QVERIFY2(position > -1e-6 && position < 1 + 1e-6, which);
                            }
                            if (ends == AxisScale::AtTicks && !scale.isOfTime())
                                QVERIFY2(scale.ticks().size() >= 2, which);
                            const bool isLogarithmic = kind == AxisScale::Logarithmic;
                            if (std::abs(a) < 1e300 && (!isLogarithmic || a >= 1e-300))
                                QVERIFY2(scale.position(a) > -1e-6 && scale.position(a) < 1 + 1e-6, which);
                            if (ends == AxisScale::AtData && isLogarithmic && a >= 1e-300 && b <= 1e300 && b > 1.1 * a)
                                QVERIFY2(scale.low() == a && scale.high() == b, which);
                        }
                    }
                }
            }
        }
    }

    void positions()
    {
        const AxisScale linear(interval({0, 10}), AxisScale::Linear, AxisScale::AtData, 5);
        QCOMPARE(linear.position(2.5), 0.25);
        const AxisScale log(interval({1, 100}), AxisScale::Logarithmic, AxisScale::AtData, 5);
        QCOMPARE(log.position(10), 0.5);
        QVERIFY(std::isnan(log.position(0)));
        QCOMPARE(log.minorTicks().size(), 16);
        const AxisScale inner(interval({0.25, 450}), AxisScale::Logarithmic, AxisScale::AtData, 5);
        QCOMPARE(inner.minorTicks().size(), 7 + 8 + 8 + 3);
        QCOMPARE(inner.position(450), 1.0);
    }

    /// Also where a day has 23 hours; the days are said once, below the axis.
    void datesAreLocal()
    {
        qputenv("TZ", "Europe/Berlin");
        tzset();
        const double low = secondsAt("2026-03-28T00:00:00");
        const AxisScale scale(interval({low, secondsAt("2026-03-31T00:00:00")}), AxisScale::Date, AxisScale::AtData, 5);
        const QStringList days = labels(scale);
        const QString note = scale.note(QLocale::c());
        const AxisScale hours(interval({low, low + 7200}), AxisScale::Date, AxisScale::AtData, 5);
        const QString day = hours.note(QLocale::c());
        // Full hours stay full behind the night.
        const QStringList quarters = labels({interval({low, low + 2 * 86400}), AxisScale::Date, AxisScale::AtData, 9});
        qputenv("TZ", "UTC");
        tzset();
        QCOMPARE(days, QStringList({"28 Mar", "29 Mar", "30 Mar", "31 Mar"}));
        QCOMPARE(note, QString("28 Mar 2026 to 31 Mar 2026"));
        QCOMPARE(day, QString("28 Mar 2026"));
        QCOMPARE(quarters.size(), 9);
        QCOMPARE(quarters.mid(4, 2), QStringList({"29 Mar 00:00", "29 Mar 06:00"}));
        QCOMPARE(quarters.constLast(), QString("30 Mar 00:00"));
    }

    /// A limit belongs to the axis of its curve, which reaches beyond it.
    void axesReachTheirLimits()
    {
        PlotData data = oneCurve({{0, 10}, {1, 20}});
        data.limits = {{PlotLimit::Upper, 100, "", LeftSide, {}}, {PlotLimit::Lower, -5000, "", RightSide, {}}};
        const Interval left = data.yExtent(LeftSide);
        QVERIFY(left.low == 10 && left.high > 100 && left.high < 105);
        QVERIFY(data.yExtent(RightSide).low <= -5000 && data.yExtent(RightSide).high < 0);
        // Not beyond zero, where no value is.
        PlotData far = oneCurve({{0, 60000}, {1, 64000}});
        far.limits = {{PlotLimit::Lower, 1000, "", LeftSide, {}}};
        QCOMPARE(far.yExtent(LeftSide).low, 0.0);
        far.limits = {{PlotLimit::Lower, 0, "", LeftSide, {}}};
        QVERIFY(far.yExtent(LeftSide).low < 0);
    }

    void noSpikeIsLost()
    {
        QVector<QPointF> points;
        for (int i = 0; i < 100'000; ++i)
            points += QPointF(i, i == 31'415 ? 100 : i == 27'182 ? -100 : std::sin(i));
        const PlotData data = oneCurve(points);
        const auto stretches = stretchesOf(data, 500);
        QCOMPARE(stretches.size(), 1);
        QVERIFY(stretches.first().size() <= 4 * 501);
        double lowest = 1;
        double highest = 0;
        double previous = 0;
        for (const QPointF& point : stretches.first()) {
            lowest = qMin(lowest, point.y());
            highest = qMax(highest, point.y());
            QVERIFY(point.x() >= previous);
            previous = point.x();
        }
        QCOMPARE(lowest, 0.0);
        QCOMPARE(highest, 1.0);
        QCOMPARE(stretches.first().first(), QPointF(0, 0.5));
    }

    void pointsThatCannotBeDrawnPartTheCurve()
    {
        const PlotData data = oneCurve({{0, 1}, {1, 2}, {2, qQNaN()}, {3, 4}, {qInf(), 50}, {50, -qInf()}, {6, 0}, {7, 1}});
        QVERIFY(data.xExtent().low == 0 && data.xExtent().high == 7);
        QVERIFY(data.yExtent(LeftSide).low == 0 && data.yExtent(LeftSide).high == 4);
        const auto stretches = stretchesOf(data, 100);
        QCOMPARE(stretches.size(), 3);
        QCOMPARE(stretches.at(0).size(), 2);
        QCOMPARE(stretches.at(1).size(), 1);
        QCOMPARE(stretches.at(2).size(), 2);

        QCOMPARE(stretchesOf(oneCurve({{1, 1}, {2, 0}, {3, -1}, {4, 10}}, AxisScale::Logarithmic), 100).size(), 2);
        QVERIFY(stretchesOf(oneCurve({}), 100).isEmpty());
    }

    /// However many points there are, in whatever order, and however often they are interrupted.
    void memoryIsBounded_data()
    {
        addColumns<int, int>();
        QTest::newRow("in order") << 0 << 0;
        QTest::newRow("back and forth") << 1 << 0;
        QTest::newRow("each alone") << 0 << 2;
        QTest::newRow("back and forth, interrupted") << 1 << 3;
    }
    void memoryIsBounded()
    {
        const auto [jumps, interruptions] = currentRow<int, int>();
        constexpr int columns = 100;
        constexpr int count = 1000 * 1000;
        CurvePoints points(columns);
        for (int i = 0; i < count; ++i) {
            const double x = jumps ? (i * 7919LL % count) / double(count) : i / double(count);
            points.add(x, {x, i == 314'159 ? 9.0 : std::sin(i)});
            if (interruptions && i % interruptions == 0)
                points.interrupt();
        }
        const QVector<QPointF> left = points.take();
        QVERIFY2(left.size() <= columns * 40, qPrintable(QString::number(left.size())));
        QVERIFY(left.size() > columns);
        QVERIFY(std::any_of(left.cbegin(), left.cend(), [](const QPointF& point) { return point.y() == 9; }));
    }
};

QTEST_GUILESS_MAIN(PlotScaleTest)
#include "tst_plotscale.moc"
