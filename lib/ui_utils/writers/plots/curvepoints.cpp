#include "writers/plots/curvepoints_p.h"

#include <QtMath>

#include <algorithm>
#include <utility>

namespace uiutils {

namespace {

// Of a column: more cannot be distinguished there.
constexpr int mostInterruptions = 8;
// Of a column, on average. A curve with more covers itself.
constexpr int mostPoints = 32;
// That become four at most.
constexpr int pointsOfAGroup = 16;

} // namespace

void CurvePoints::Column::take(const QPointF& point)
{
    if (m_count == 0)
        m_first = m_lowest = m_highest = {point, 0};
    if (point.y() < m_lowest.point.y())
        m_lowest = {point, m_count};
    if (point.y() > m_highest.point.y())
        m_highest = {point, m_count};
    m_last = {point, m_count};
    ++m_count;
}

void CurvePoints::Column::moveTo(QVector<QPointF>& points)
{
    Entry entries[] = {m_first, m_lowest, m_highest, m_last};
    if (entries[1].order > entries[2].order)
        std::swap(entries[1], entries[2]);
    int previous = -1;
    for (const Entry& entry : entries) {
        if (m_count > 0 && entry.order != previous)
            points += entry.point;
        previous = entry.order;
    }
    m_count = 0;
}

CurvePoints::CurvePoints(int columns)
    : m_columns(std::max(1, columns))
    , m_most(m_columns * mostPoints)
{
}

void CurvePoints::add(double position, const QPointF& point)
{
    const int column = columnOf(position);
    if (column != m_current) {
        m_column.moveTo(m_points);
        // The next column is not connected with this one.
        if (m_isInterrupted && !isInterruption(m_points.constLast()))
            m_points += interruption();
        m_interruptions = 0;
        if (m_points.size() > m_most)
            compact();
    }
    m_current = column;
    m_isInterrupted = false;
    m_column.take(point);
}

int CurvePoints::columnOf(double position) const
{
    return int(qBound(0.0, position, 1.0) * m_columns);
}

void CurvePoints::interrupt()
{
    if (m_interruptions >= mostInterruptions) {
        m_isInterrupted = true;
        return;
    }
    m_column.moveTo(m_points);
    if (m_points.isEmpty() || isInterruption(m_points.constLast()))
        return;
    m_points += interruption();
    ++m_interruptions;
}

/// Halves the points at least, by joining those that follow each other.
void CurvePoints::compact()
{
    QVector<QPointF> points;
    points.reserve(m_most);
    Column group;
    for (int i = 0; i < m_points.size(); ++i) {
        if (i % pointsOfAGroup == 0)
            group.moveTo(points);
        if (!isInterruption(m_points.at(i)))
            group.take(m_points.at(i));
    }
    group.moveTo(points);
    m_points = points;
}

QVector<QPointF> CurvePoints::take()
{
    m_column.moveTo(m_points);
    m_current = -1;
    m_interruptions = 0;
    m_isInterrupted = false;
    return std::exchange(m_points, {});
}

QPointF CurvePoints::interruption()
{
    return {qQNaN(), qQNaN()};
}

bool CurvePoints::isInterruption(const QPointF& point)
{
    return qIsNaN(point.x());
}

} // namespace uiutils
