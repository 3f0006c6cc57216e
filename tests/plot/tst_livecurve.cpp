#include "axisview.h"
#include "curvetrace.h"
#include "writers/plots/axisscale_p.h"

#include <QtMath>
#include <QtTest>

#include <random>

using namespace uiutils;

Q_DECLARE_METATYPE(QVector<uiutils::CurveBound>)

namespace {

constexpr double none = std::numeric_limits<double>::quiet_NaN();
constexpr double infinite = std::numeric_limits<double>::infinity();

/// A curve and its judge, as a plot has them.
struct Curve
{
    explicit Curve(const QVector<QPointF>& points, const QVector<CurveBound>& bounds = {}, bool isLogX = false, bool isLogY = false)
        : judge(bounds, isLogX, isLogY)
    {
        store.setScales(isLogX, isLogY);
        store.replace(points);
        for (int i = 0; i < points.size() && !judge.isEmpty(); ++i) {
            if (store.isDrawable(store.at(i)))
                verdicts.append(i, judge.status(store.at(i)));
        }
    }
    CurveTrace trace(const AxisView& x, const AxisView& y, int columns) const { return curveTrace({store, judge, verdicts}, x, y, columns); }

    CurveStore store;
    CurveJudge judge;
    CurveVerdicts verdicts;
};

QVector<QPointF> allPoints(const CurveTrace& trace)
{
    QVector<QPointF> points;
    for (const auto& parts : {trace.lines, trace.dots}) {
        for (const TracePart& part : parts)
            points += part.points;
    }
    return points;
}

} // namespace

class LiveCurveTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyColumnHasItsExtremes_data();
    void everyColumnHasItsExtremes();
    void edges();
    void appendedAsReplaced();
    void gapsStayGaps();
    void brokenData_data();
    void brokenData();
    void judged_data();
    void judged();
    void noFailureIsLost();
    void views();
};

void LiveCurveTest::everyColumnHasItsExtremes_data()
{
    QTest::addColumn<bool>("isReversed");
    QTest::newRow("from left to right") << false;
    QTest::newRow("from right to left") << true;
}

/// Against a walk over all points, in windows that begin and end anywhere in a block.
void LiveCurveTest::everyColumnHasItsExtremes()
{
    QFETCH(bool, isReversed);
    std::mt19937 random(7);
    const int count = 40000, columns = 97;
    QVector<QPointF> points;
    for (int i = 0; i < count; ++i)
        points += i % 512 == 1 ? QPointF(none, 1) : QPointF(i, random() % 2000 == 0 ? 5.0 - random() % 11 : 0.001 * (random() % 1000));
    if (isReversed)
        std::reverse(points.begin(), points.end());
    const Curve curve(points);
    QCOMPARE(curve.store.isAscending(), !isReversed);
    const AxisView y({-10, 10}, false);
    for (const Interval window : {Interval {0, count - 1.0}, {63, 64 * 65}, {1000.5, 38999.5}, {-5000, 5000}, {20000, 20300}}) {
        const AxisView x(window, false);
        QVector<Interval> expected(columns), found(columns);
        // A point on the edge of two columns may be in either.
        const auto column = [&](double position) { return qMin(columns - 1, int(position * columns + 1e-9)); };
        for (const QPointF& point : points) {
            if (point.x() >= window.low && point.x() <= window.high)
                expected[column(x.position(point.x()))].include(y.position(point.y()));
        }
        for (const QPointF& point : allPoints(curve.trace(x, y, columns)))
            found[column(point.x())].include(point.y());
        int most = 0;
        for (int i = 0; i < columns; ++i) {
            if (expected.at(i).isEmpty())
                continue;
            QVERIFY2(found.at(i).low <= expected.at(i).low && found.at(i).high >= expected.at(i).high, qPrintable(QString("column %1").arg(i)));
            ++most;
        }
        QVERIFY(most > columns / 3);
        QVERIFY(allPoints(curve.trace(x, y, columns)).size() < 12 * columns);
    }
}

void LiveCurveTest::edges()
{
    const int columns = 10;
    // Lines lead to points beyond the window.
    const CurveTrace between = Curve({{0, 0}, {10, 10}}).trace(AxisView({4, 6}, false), AxisView({0, 10}, false), columns);
    QCOMPARE(between.lines.size(), 1);
    QVERIFY(between.lines.at(0).points == QVector<QPointF>({{0, 0.4}, {1, 0.6}}));
    // Of many points on the right edge, all count; so does a curve along an edge that is rounded.
    QVector<QPointF> wall;
    for (int i = 0; i < 300; ++i)
        wall += QPointF(10, i == 200 ? 9 : 1);
    const CurveTrace right = Curve(wall, {{CurveBound::Upper, {{0, 8}}, Status::Fail, {}}}).trace(AxisView({0, 10}, false), AxisView({0, 10}, false), columns);
    QVERIFY(allPoints(right).contains({1, 0.9}));
    const AxisView rounded({0, 1.001 - 1e-15}, false);
    QCOMPARE(Curve({{0, 1.001}, {10, 1.001}}).trace(AxisView({0, 10}, false), rounded, columns).lines.size(), 1);
    QCOMPARE(Curve({{5, 1.001}}).trace(AxisView({0, 10}, false), rounded, columns).dots.size(), 1);
    // What goes on beyond the window is no line along its edge.
    const CurveTrace away = Curve({{0.001, 0.1}, {-5, 5}, {0.002, 9}, {10, 9}, {9, 9}}).trace(AxisView({0, 10}, false), AxisView({0, 10}, false), columns);
    for (const TracePart& part : away.lines) {
        for (int i = 1; i < part.points.size(); ++i)
            QVERIFY(qAbs(part.points.at(i).y() - part.points.at(i - 1).y()) < 0.1);
    }
    // A gap at the beginning is left of everything.
    const Curve late({{none, 1}, {-5, 1}, {-4, 2}});
    QVERIFY(late.store.isAscending() && late.store.xExtent().low == -5);
}

void LiveCurveTest::appendedAsReplaced()
{
    QVector<QPointF> points;
    for (int i = 0; i < 5000; ++i)
        points += QPointF(i, i % 777 == 0 ? none : std::sin(i * 0.7) * i);
    CurveStore grown;
    for (int i = -300; i < points.size(); ++i)
        grown.append(i < 0 ? QPointF(-1, 1e9) : points.at(i));
    QCOMPARE(grown.yExtent().high, 1e9);
    grown.discard(300);
    CurveStore whole;
    whole.replace(points);
    QCOMPARE(grown.yExtent().high, whole.yExtent().high);
    QCOMPARE(grown.yExtent(100, 3001).low, whole.yExtent(100, 3001).low);
    const AxisView x({0, 5000}, false), y({-5000, 5000}, false);
    const CurveJudge judge;
    const CurveVerdicts unjudged;
    QVERIFY(curveTrace({grown, judge, unjudged}, x, y, 50) == curveTrace({whole, judge, unjudged}, x, y, 50));
    // 64 points from 128 on, without the 128th and the 192nd, which are higher.
    CurveStore levels;
    for (int i = 0; i < 400; ++i)
        levels.append(QPointF(i, i == 127 || i == 192 ? 100 : i == 150 ? 7 : 1));
    QCOMPARE(levels.yExtent(128, 192).high, 7.0);
}

/// No line crosses a gap, however many points are in a column.
void LiveCurveTest::gapsStayGaps()
{
    for (const int count : {20, 1000, 300000}) {
        for (const QPointF gap : {QPointF(none, none), QPointF(0.5, none), QPointF(none, 1), QPointF(0.5, infinite)}) {
            QVector<QPointF> points;
            for (int i = 0; i < count; ++i) {
                const double part = double(i) / count;
                points += part > 0.45 && part < 0.55 ? gap : QPointF(part, part);
            }
            const CurveTrace trace = Curve(points).trace(AxisView({0, 1}, false), AxisView({0, 1}, false), 100);
            QCOMPARE(trace.lines.size(), 2);
            QVERIFY(trace.lines.at(0).points.constLast().x() <= 0.45 && trace.lines.at(1).points.constFirst().x() >= 0.54);
        }
    }
    // A gap of one point, within a block and a column.
    QVector<QPointF> many;
    for (int i = 0; i < 100000; ++i)
        many += QPointF(i, i == 50530 ? none : i % 3);
    for (int order = 0; order < 2; ++order) {
        QCOMPARE(Curve(many).trace(AxisView({0, 99999}, false), AxisView({0, 3}, false), 100).lines.size(), 2);
        std::reverse(many.begin(), many.end());
    }
    // A long one after more short ones than a column shows.
    for (const int density : {1, 100}) {
        QVector<QPointF> flicker;
        for (int i = 0; i < 4000 * density; ++i)
            flicker += QPointF(i, i < 1000 * density ? (i % 3 ? 1 : none) : i < 3000 * density ? none : 1);
        for (const TracePart& part : Curve(flicker).trace(AxisView({0, 4000.0 * density}, false), AxisView({0, 3}, false), 40).lines)
            QVERIFY(part.points.constFirst().x() > 0.7 || part.points.constLast().x() < 0.3);
    }
    // A point between gaps is a dot.
    const Curve lonely({{0, 0}, {0.2, none}, {0.5, 0.5}, {0.6, none}, {1, 1}});
    const CurveTrace trace = lonely.trace(AxisView({0, 1}, false), AxisView({0, 1}, false), 10);
    QCOMPARE(trace.lines.size(), 0);
    QCOMPARE(trace.dots.size(), 3);
}

void LiveCurveTest::brokenData_data()
{
    QTest::addColumn<QVector<QPointF>>("points");
    QTest::addColumn<bool>("isLog");
    QTest::addColumn<bool>("isSeen");
    QTest::newRow("empty") << QVector<QPointF>() << false << false;
    QTest::newRow("one point") << QVector<QPointF> {{3, 4}} << false << true;
    QTest::newRow("only gaps") << QVector<QPointF> {{none, none}, {1, infinite}, {-infinite, 2}} << false << false;
    QTest::newRow("one x") << QVector<QPointF> {{2, 1}, {2, 9}, {2, -4}} << false << true;
    QTest::newRow("from right to left") << QVector<QPointF> {{9, 1}, {5, 2}, {1, 3}} << false << true;
    QTest::newRow("huge") << QVector<QPointF> {{-1.7e308, 1.7e308}, {0, -1.7e308}, {1.7e308, 1e300}} << false << true;
    QTest::newRow("tiny") << QVector<QPointF> {{0, 1e-320}, {1e-320, 3e-320}, {4e-320, 0}} << false << true;
    QTest::newRow("a gap first") << QVector<QPointF> {{none, 1}, {7, 1}, {8, 2}} << false << true;
    QTest::newRow("log with negatives") << QVector<QPointF> {{-1, 5}, {0, 5}, {1, -3}, {10, 1}, {100, 1e5}, {1000, 0}} << true << true;
    QTest::newRow("log without positives") << QVector<QPointF> {{-1, -5}, {0, 0}} << true << false;
}

/// Whatever the points and the window are, what is drawn is in the frame.
void LiveCurveTest::brokenData()
{
    QFETCH(QVector<QPointF>, points);
    QFETCH(bool, isLog);
    QFETCH(bool, isSeen);
    const Curve curve(points, {{CurveBound::Upper, {{0, 2}}, Status::Fail, {}}}, isLog, isLog);
    const AxisView whole(curve.store.xExtent(), isLog), values(curve.store.yExtent(), isLog);
    for (const AxisView& x : {whole, whole.zoomed(1e6, 0.3), whole.zoomed(1e-6, 0.5), whole.panned(0.7)}) {
        for (const AxisView& y : {values, values.zoomed(1e6, 0.9), values.panned(-3)}) {
            QVERIFY(std::isfinite(x.low()) && x.low() < x.high() && std::isfinite(x.high() - x.low()));
            for (const QPointF& point : allPoints(curve.trace(x, y, 20)))
                QVERIFY(point.x() >= -1e-9 && point.x() <= 1 + 1e-9 && point.y() >= -1e-9 && point.y() <= 1 + 1e-9);
        }
    }
    QCOMPARE(!allPoints(curve.trace(whole, values, 20)).isEmpty(), isSeen);
}

void LiveCurveTest::judged_data()
{
    QTest::addColumn<QVector<CurveBound>>("bounds");
    // The statuses along a line from (0, 0) to (1, 1), and where each begins.
    QTest::addColumn<QVector<QPointF>>("parts");
    const int pass = Status::Pass, marginal = Status::Marginal, fail = Status::Fail;
    const auto bound = [](CurveBound::Side side, const QVector<QPointF>& points, Status::Code status = Status::Fail) {
        return CurveBound {side, points, status, QString()};
    };
    QTest::newRow("none") << QVector<CurveBound> {} << QVector<QPointF> {{0, Status::None}};
    QTest::newRow("upper") << QVector<CurveBound> {bound(CurveBound::Upper, {{0, 0.25}})} << QVector<QPointF> {{0, pass}, {0.25, fail}};
    QTest::newRow("lower") << QVector<CurveBound> {bound(CurveBound::Lower, {{0, 0.25}})} << QVector<QPointF> {{0, fail}, {0.25, pass}};
    QTest::newRow("warning below limit")
            << QVector<CurveBound> {bound(CurveBound::Upper, {{0, 0.75}}), bound(CurveBound::Upper, {{0, 0.5}}, Status::Marginal)}
            << QVector<QPointF> {{0, pass}, {0.5, marginal}, {0.75, fail}};
    QTest::newRow("falling mask") << QVector<CurveBound> {bound(CurveBound::Upper, {{0, 1}, {1, 0}})} << QVector<QPointF> {{0, pass}, {0.5, fail}};
    QTest::newRow("mask that ends before") << QVector<CurveBound> {bound(CurveBound::Upper, {{0, 0.1}, {0.05, 0.1}})} << QVector<QPointF> {{0, pass}};
}

void LiveCurveTest::judged()
{
    QFETCH(QVector<CurveBound>, bounds);
    QFETCH(QVector<QPointF>, parts);
    const Curve curve({{0, 0}, {1, 1}}, bounds);
    const CurveTrace trace = curve.trace(AxisView({0, 1}, false), AxisView({0, 1}, false), 100);
    QCOMPARE(trace.lines.size(), parts.size());
    for (int i = 0; i < parts.size(); ++i) {
        QCOMPARE(int(trace.lines.at(i).status), int(parts.at(i).y()));
        QVERIFY(qAbs(trace.lines.at(i).points.constFirst().x() - parts.at(i).x()) < 1e-4);
    }
    QCOMPARE(double(curve.verdicts.worst()), qMax(parts.constFirst().y(), parts.constLast().y()));
}

/// A failure that is neither the highest nor the lowest point of its column, because the mask steps within it.
void LiveCurveTest::noFailureIsLost()
{
    QVector<QPointF> points;
    for (int i = 0; i < 100000; ++i)
        points += QPointF(i, i % 2);
    points[50000].setY(9);
    points[50003].setY(6);
    QVector<QPointF> reversed = points;
    std::reverse(reversed.begin(), reversed.end());
    const CurveBound mask {CurveBound::Upper, {{0, 10}, {50001, 10}, {50001.5, 5}, {50004, 5}, {50004.5, 10}, {99999, 10}}, Status::Fail, QString()};
    for (const QVector<QPointF>& order : {points, reversed}) {
        const Curve curve(order, {mask});
        QCOMPARE(int(curve.verdicts.worst()), int(Status::Fail));
        const AxisView x({0, 99999}, false), y({0, 12}, false);
        const CurveTrace trace = curve.trace(x, y, 100);
        QCOMPARE(trace.dots.size(), 1);
        QCOMPARE(trace.dots.at(0).status, Status::Fail);
        QCOMPARE(trace.dots.at(0).points, QVector<QPointF>({{x.position(50003), 0.5}}));
    }
    // Along a logarithmic axis, the straight line that is seen counts: 10 in the middle of 1 and 100.
    const CurveBound slope {CurveBound::Upper, {{1, 1}, {100, 100}}, Status::Fail, QString()};
    QCOMPARE(CurveJudge({slope}, true, true).status({10, 11}), Status::Fail);
    QCOMPARE(CurveJudge({slope}, true, true).status({10, 9.9}), Status::Pass);
}

void LiveCurveTest::views()
{
    for (const AxisView& view : {AxisView({-5, 15}, false), AxisView({0.01, 1e4}, true)}) {
        const double before = view.value(0.3);
        const AxisView near = view.zoomed(4, 0.3);
        QVERIFY(qAbs(near.position(before) - 0.3) < 1e-9);
        QVERIFY(qAbs((near.position(view.value(0.5)) - 0.3) - 4 * 0.2) < 1e-9);
        QVERIFY(qAbs(view.panned(0.25).position(before) - 0.55) < 1e-9);
    }
    // What cannot be shown changes nothing.
    AxisView view({1e9, 1e9 + 1}, false);
    for (int i = 0; i < 200; ++i)
        view = view.zoomed(10, 0.5);
    QVERIFY(view.high() > view.low() && view.low() >= 1e9 && view.high() <= 1e9 + 1);
    // However near, the scale is that of what is shown.
    QCOMPARE(AxisScale(view.values(), AxisScale::Linear, AxisScale::AtData, 5).low(), view.low());
    QVERIFY(AxisView({-5, 50}, true).low() > 1e-3);
    for (int i = 0; i < 1000; ++i)
        view = view.zoomed(0.1, 0.5);
    QVERIFY(std::isfinite(view.high() - view.low()));
    for (const double wrong : {0.0, -1.0, none, infinite})
        QVERIFY(view.zoomed(wrong, 0.5) == view);
}

QTEST_APPLESS_MAIN(LiveCurveTest)
#include "tst_livecurve.moc"
