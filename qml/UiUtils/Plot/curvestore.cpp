#include "curvestore.h"

#include "writers/plots/curvepoints_p.h"

#include <QtMath>

#include <algorithm>

namespace uiutils {

namespace {

// Points of a block of each level.
constexpr int blockSizes[] = {64, 1024, 16384, 262144, 4194304};
// Of a column; CurvePoints shows no more.
constexpr int mostInterruptions = 8;

} // namespace

void CurveStore::setScales(bool isLogarithmicX, bool isLogarithmicY)
{
    if (isLogarithmicX == m_isLogarithmicX && isLogarithmicY == m_isLogarithmicY)
        return;
    m_isLogarithmicX = isLogarithmicX;
    m_isLogarithmicY = isLogarithmicY;
    rebuild();
}

bool CurveStore::isDrawable(const QPointF& point) const
{
    return std::isfinite(point.x()) && std::isfinite(point.y()) && (!m_isLogarithmicX || point.x() > 0)
            && (!m_isLogarithmicY || point.y() > 0);
}

void CurveStore::append(const QPointF& point)
{
    // A gap has a place of its own, so that ranges of x can be found by halving.
    m_points += std::isfinite(point.x()) ? point : QPointF(m_lastX, qQNaN());
    take(m_points.size() - 1);
}

void CurveStore::replace(const QVector<QPointF>& points)
{
    m_points.clear();
    m_points.reserve(points.size());
    rebuild();
    for (const QPointF& point : points)
        append(point);
}

void CurveStore::discard(int count)
{
    m_points.remove(0, qBound(0, count, m_points.size()));
    rebuild();
}

void CurveStore::rebuild()
{
    m_x = m_y = Interval();
    m_isAscending = true;
    m_lastX = m_points.isEmpty() ? -qInf() : m_points.constFirst().x();
    for (QVector<Block>& level : m_levels)
        level.clear();
    for (int i = 0; i < m_points.size(); ++i)
        take(i);
}

void CurveStore::take(int index)
{
    const QPointF& point = m_points.at(index);
    const bool isDrawable = this->isDrawable(point);
    if (index > 0 && point.x() < m_lastX)
        m_isAscending = false;
    m_lastX = point.x();
    if (isDrawable) {
        m_x.include(point.x());
        m_y.include(point.y());
    }
    for (int level = 0; level < levels; ++level) {
        const int number = index / blockSizes[level];
        if (number == m_levels[level].size())
            m_levels[level].append(Block());
        enter(m_levels[level][number], index, isDrawable);
    }
}

void CurveStore::enter(Block& block, int index, bool isDrawable) const
{
    if (!isDrawable) {
        block.isInterrupted = true;
        return;
    }
    if (block.first < 0)
        block.first = block.lowest = block.highest = index;
    const double y = m_points.at(index).y();
    if (y < m_points.at(block.lowest).y())
        block.lowest = index;
    if (y > m_points.at(block.highest).y())
        block.highest = index;
    block.last = index;
    block.x.include(m_points.at(index).x());
}

int CurveStore::firstFrom(double x, int begin) const
{
    const auto found = std::lower_bound(m_points.cbegin() + begin, m_points.cend(), x,
            [](const QPointF& point, double value) { return point.x() < value; });
    return int(found - m_points.cbegin());
}

int CurveStore::firstBeyond(double x, int begin) const
{
    const auto found = std::upper_bound(m_points.cbegin() + begin, m_points.cend(), x,
            [](double value, const QPointF& point) { return value < point.x(); });
    return int(found - m_points.cbegin());
}

/// The level of the largest block that begins at `index` and ends by `end`; -1 if a point must be looked at by itself.
int CurveStore::blockLevel(int index, int end, bool mayBeInterrupted) const
{
    int found = -1;
    for (int level = 0; level < levels; ++level) {
        const int size = blockSizes[level];
        if (index % size != 0 || index + size > end)
            break;
        const Block& block = m_levels[level].at(index / size);
        if (block.isInterrupted && block.first >= 0 && !mayBeInterrupted)
            break;
        found = level;
    }
    return found;
}

Interval CurveStore::yExtent(int begin, int end) const
{
    Interval extent;
    for (int i = begin; i < end;) {
        const int level = blockLevel(i, end, true);
        if (level < 0) {
            if (isDrawable(m_points.at(i)))
                extent.include(m_points.at(i).y());
            ++i;
            continue;
        }
        const Block& block = m_levels[level].at(i / blockSizes[level]);
        if (block.first >= 0)
            extent.include({m_points.at(block.lowest).y(), m_points.at(block.highest).y()});
        i += blockSizes[level];
    }
    return extent;
}

void CurveStore::feed(CurvePoints& points, double position, int begin, int end) const
{
    int interruptions = 0;
    bool isOpen = false;
    for (int i = begin; i < end;) {
        const int level = blockLevel(i, end, interruptions >= mostInterruptions);
        if (level >= 0) {
            isOpen = feedBlock(points, position, m_levels[level].at(i / blockSizes[level]));
            i += blockSizes[level];
            continue;
        }
        const bool isDrawn = isDrawable(m_points.at(i));
        if (isDrawn)
            points.add(position, m_points.at(i));
        else
            points.interrupt();
        interruptions += isOpen && !isDrawn;
        isOpen = isDrawn;
        ++i;
    }
}

/// Returns whether there was something to draw.
bool CurveStore::feedBlock(CurvePoints& points, double position, const Block& block) const
{
    if (block.first < 0) {
        points.interrupt();
        return false;
    }
    const auto [early, late] = std::minmax(block.lowest, block.highest);
    for (const int index : {block.first, early, late, block.last})
        points.add(position, m_points.at(index));
    return true;
}

/// The level of the largest block that begins at `index`, is complete, and is wanted with all that it has of smaller
/// ones; -1 if there is none.
template<typename Condition> int CurveStore::largestBlock(int index, const Condition& isWanted) const
{
    int found = -1;
    for (int level = 0; level < levels; ++level) {
        const int size = blockSizes[level];
        if (index % size != 0 || index + size > m_points.size() || !isWanted(m_levels[level].at(index / size)))
            break;
        found = level;
    }
    return found;
}

void CurveStore::feedAll(CurvePoints& points, const std::function<double(double)>& positionOf) const
{
    const auto isOneColumn = [&](const Block& block) {
        return block.first >= 0 && !block.isInterrupted
                && points.columnOf(positionOf(block.x.low)) == points.columnOf(positionOf(block.x.high));
    };
    for (int i = 0; i < m_points.size();) {
        const int level = largestBlock(i, isOneColumn);
        if (level >= 0) {
            const Block& block = m_levels[level].at(i / blockSizes[level]);
            feedBlock(points, positionOf(block.x.low), block);
            i += blockSizes[level];
            continue;
        }
        if (isDrawable(m_points.at(i)))
            points.add(positionOf(m_points.at(i).x()), m_points.at(i));
        else
            points.interrupt();
        ++i;
    }
}

int CurveStore::firstLineAt(double x) const
{
    const auto isElsewhere
            = [&](const Block& block) { return block.x.isEmpty() || block.x.low > x || block.x.high < x; };
    for (int i = 0; i + 1 < m_points.size();) {
        const int level = largestBlock(i, isElsewhere);
        // The line from the block's last point leads to the next block.
        if (level >= 0) {
            i += blockSizes[level] - 1;
            if (i + 1 == m_points.size())
                break;
        }
        const QPointF& from = m_points.at(i);
        const QPointF& to = m_points.at(i + 1);
        const auto [low, high] = std::minmax({from.x(), to.x()});
        if (low <= x && x <= high && isDrawable(from) && isDrawable(to))
            return i;
        ++i;
    }
    return -1;
}

} // namespace uiutils
