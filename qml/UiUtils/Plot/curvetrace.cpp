#include "curvetrace.h"

#include "writers/plots/curvepoints_p.h"

#include <QtMath>

#include <algorithm>

namespace uiutils {

namespace {

// Of the judgement along one line: more cannot be distinguished.
constexpr int mostChanges = 8;
// Of the window: ends of axes are rounded, and a curve along the edge is to be seen.
constexpr double rounding = 1e-9;

/// Calls visit(column, begin, end) with the points of each column of an ascending curve; returns the first point that
/// is right of the window.
template<typename Visitor> int forEachColumn(const CurveStore& store, const AxisView& x, int columns, Visitor visit)
{
    int from = store.firstFrom(x.low());
    for (int column = 0; column < columns; ++column) {
        // The last column has the right edge.
        const int to = column == columns - 1 ? store.firstBeyond(x.high(), from)
                                             : store.firstFrom(x.value(double(column + 1) / columns), from);
        visit(column, from, to);
        from = to;
    }
    return from;
}

/// The points that remain, with one more on either side of the window, to which lines lead.
QVector<QPointF> thinnedAscending(const CurveStore& store, const AxisView& x, int columns)
{
    CurvePoints points(columns);
    QVector<QPointF> thinned;
    const int first = store.firstFrom(x.low());
    if (first > 0 && store.isDrawable(store.at(first - 1)))
        thinned += store.at(first - 1);
    const int from = forEachColumn(store, x, columns, [&](int column, int begin, int end) {
        store.feed(points, (column + 0.5) / columns, begin, end);
    });
    thinned += points.take();
    if (from < store.size())
        thinned += store.isDrawable(store.at(from)) ? store.at(from) : CurvePoints::interruption();
    return thinned;
}

QVector<QPointF> thinnedInOrder(const CurveStore& store, const AxisView& x, int columns)
{
    // Two more columns, so that nothing beyond the window counts as being at its edges.
    const int all = columns + 2;
    CurvePoints points(all);
    store.feedAll(points, [&](double value) { return (x.position(value) * columns + 1) / all; });
    return points.take();
}

/// Cuts a line at one edge after the other; false if nothing of it is in the window.
bool cutToWindow(const QPointF& from, const QPointF& to, double& begin, double& end)
{
    const QPointF way = to - from;
    const double steps[] = {-way.x(), way.x(), -way.y(), way.y()};
    const double rooms[] = {from.x(), 1 - from.x(), from.y(), 1 - from.y()};
    begin = 0;
    end = 1;
    for (int edge = 0; edge < 4; ++edge) {
        if (steps[edge] == 0 && rooms[edge] < 0)
            return false;
        if (steps[edge] == 0)
            continue;
        const double at = rooms[edge] / steps[edge];
        if (steps[edge] < 0)
            begin = std::max(begin, at);
        else
            end = std::min(end, at);
    }
    return begin <= end;
}

double atEdge(double place)
{
    return std::abs(place) <= rounding ? 0 : std::abs(place - 1) <= rounding ? 1 : place;
}

bool isInWindow(const QPointF& position)
{
    return position.x() >= 0 && position.x() <= 1 && position.y() >= 0 && position.y() <= 1;
}

/// Builds the trace from one point after the other.
class Tracer
{
public:
    Tracer(const CurveJudge& judge, const AxisView& x, const AxisView& y, int columns)
        : m_judge(judge)
        , m_x(x)
        , m_y(y)
        , m_worst(columns, Status::None)
    {
    }

    void add(const QPointF& point)
    {
        const QPointF position = positionOf(point);
        const Status::Code status = m_judge.isEmpty() ? Status::None : m_judge.status(point);
        if (isInWindow(position)) {
            Status::Code& worst = m_worst[columnOf(position)];
            worst = std::max(worst, status);
        }
        if (m_count > 0)
            addLine(position, status);
        m_last = position;
        m_lastStatus = status;
        ++m_count;
    }

    void interrupt()
    {
        if (m_count == 1 && isInWindow(m_last))
            addDot(m_last, m_lastStatus);
        m_count = 0;
    }

    /// A point that exceeds a bound, unless its column shows one.
    void mark(const QPointF& point, Status::Code status)
    {
        const QPointF position = positionOf(point);
        if (!isInWindow(position) || m_worst.at(columnOf(position)) >= status)
            return;
        addDot(position, status);
        m_worst[columnOf(position)] = status;
    }

    CurveTrace take() { return std::move(m_trace); }

private:
    QPointF positionOf(const QPointF& point) const
    {
        return {atEdge(m_x.position(point.x())), atEdge(m_y.position(point.y()))};
    }

    int columnOf(const QPointF& position) const
    {
        return std::min(int(position.x() * m_worst.size()), m_worst.size() - 1);
    }

    Status::Code statusAt(const QPointF& position) const
    {
        return m_judge.status({m_x.value(position.x()), m_y.value(position.y())});
    }

    void addDot(const QPointF& position, Status::Code status) { m_trace.dots.append({status, {position}}); }

    /// In a part for each judgement along the line.
    void addLine(const QPointF& to, Status::Code status)
    {
        QPointF from = m_last;
        Status::Code present = m_lastStatus;
        for (int change = 0; present != status && change < mostChanges; ++change) {
            const QPointF crossing = endOf(present, from, to);
            addPart(from, crossing, present);
            from = crossing;
            present = statusAt(crossing);
        }
        addPart(from, to, status);
    }

    /// The first point of the line that is judged in another way than its beginning.
    QPointF endOf(Status::Code status, const QPointF& from, const QPointF& to) const
    {
        constexpr int halvings = 24;
        double begin = 0;
        double end = 1;
        for (int i = 0; i < halvings; ++i) {
            const double middle = (begin + end) / 2;
            (statusAt(from + middle * (to - from)) == status ? begin : end) = middle;
        }
        return from + end * (to - from);
    }

    void addPart(const QPointF& from, const QPointF& to, Status::Code status)
    {
        double begin = 0;
        double end = 1;
        if (!cutToWindow(from, to, begin, end))
            return;
        const QPointF first = begin > 0 ? from + begin * (to - from) : from;
        const QPointF last = end < 1 ? from + end * (to - from) : to;
        const bool goesOn = !m_trace.lines.isEmpty() && m_trace.lines.constLast().status == status
                && m_trace.lines.constLast().points.constLast() == first && begin <= 0;
        if (!goesOn)
            m_trace.lines.append({status, {first}});
        m_trace.lines.last().points += last;
    }

    const CurveJudge& m_judge;
    const AxisView& m_x;
    const AxisView& m_y;
    // Of each column: the worst point that a line shows.
    QVector<Status::Code> m_worst;
    CurveTrace m_trace;
    QPointF m_last;
    Status::Code m_lastStatus = Status::None;
    // Of the present stretch.
    int m_count = 0;
};

void markExceeding(Tracer& tracer, const CurveSource& curve, const AxisView& x, int columns)
{
    forEachColumn(curve.store, x, columns, [&](int, int begin, int end) {
        for (const Status::Code status : {Status::Fail, Status::Marginal}) {
            const int index = curve.verdicts.firstOf(status, begin, end);
            if (index >= 0)
                tracer.mark(curve.store.at(index), status);
        }
    });
}

void markExceedingInOrder(Tracer& tracer, const CurveSource& curve)
{
    for (const Status::Code status : {Status::Fail, Status::Marginal}) {
        for (const int index : curve.verdicts.all(status))
            tracer.mark(curve.store.at(index), status);
    }
}

} // namespace

CurveTrace curveTrace(const CurveSource& curve, const AxisView& x, const AxisView& y, int columns)
{
    const int shown = std::max(1, columns);
    const bool isAscending = curve.store.isAscending();
    Tracer tracer(curve.judge, x, y, shown);
    const QVector<QPointF> points
            = isAscending ? thinnedAscending(curve.store, x, shown) : thinnedInOrder(curve.store, x, shown);
    for (const QPointF& point : points) {
        if (CurvePoints::isInterruption(point))
            tracer.interrupt();
        else
            tracer.add(point);
    }
    tracer.interrupt();
    if (isAscending && curve.verdicts.worst() > Status::Pass)
        markExceeding(tracer, curve, x, shown);
    else if (!isAscending)
        markExceedingInOrder(tracer, curve);
    return tracer.take();
}

} // namespace uiutils
