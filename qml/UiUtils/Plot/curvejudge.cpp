#include "curvejudge.h"

#include <QtMath>

#include <algorithm>

namespace uiutils {

namespace {

double onScale(double value, bool isLogarithmic)
{
    return isLogarithmic ? std::log10(value) : value;
}

} // namespace

CurveJudge::CurveJudge(const QVector<CurveBound>& bounds, bool isLogarithmicX, bool isLogarithmicY)
    : m_isLogarithmicX(isLogarithmicX)
    , m_isLogarithmicY(isLogarithmicY)
{
    for (const CurveBound& bound : bounds) {
        if (!bound.points.isEmpty())
            m_bounds += bound;
    }
}

Status::Code CurveJudge::status(const QPointF& point) const
{
    Status::Code worst = Status::Pass;
    for (const CurveBound& bound : m_bounds) {
        if (bound.status > worst && exceeds(bound, point))
            worst = bound.status;
    }
    return worst;
}

/// NaN, beyond the ends of a bound, is never exceeded.
bool CurveJudge::exceeds(const CurveBound& bound, const QPointF& point) const
{
    const double level = bound.isLevel() ? bound.points.constFirst().y() : levelAt(bound, point.x());
    return bound.side == CurveBound::Upper ? point.y() > level : point.y() < level;
}

double CurveJudge::levelAt(const CurveBound& bound, double x) const
{
    const auto after = std::lower_bound(bound.points.cbegin(), bound.points.cend(), x,
            [](const QPointF& point, double value) { return point.x() < value; });
    if (after == bound.points.cend())
        return qQNaN();
    // Where the bound steps, the level on the left counts up to the step.
    if (after == bound.points.cbegin())
        return after->x() == x ? after->y() : qQNaN();
    const QPointF& before = *(after - 1);
    const double left = onScale(before.x(), m_isLogarithmicX);
    const double part = (onScale(x, m_isLogarithmicX) - left) / (onScale(after->x(), m_isLogarithmicX) - left);
    const double low = onScale(before.y(), m_isLogarithmicY);
    const double level = low + part * (onScale(after->y(), m_isLogarithmicY) - low);
    return m_isLogarithmicY ? std::pow(10, level) : level;
}

void CurveVerdicts::clear()
{
    m_marginal.clear();
    m_failed.clear();
    m_hasPoints = false;
}

void CurveVerdicts::append(int index, Status::Code status)
{
    m_hasPoints = true;
    if (status == Status::Marginal)
        m_marginal += index;
    else if (status == Status::Fail)
        m_failed += index;
}

Status::Code CurveVerdicts::worst() const
{
    if (!m_hasPoints)
        return Status::None;
    return !m_failed.isEmpty() ? Status::Fail : !m_marginal.isEmpty() ? Status::Marginal : Status::Pass;
}

int CurveVerdicts::firstOf(Status::Code status, int begin, int end) const
{
    const QVector<int>& found = all(status);
    const auto first = std::lower_bound(found.cbegin(), found.cend(), begin);
    return first != found.cend() && *first < end ? *first : -1;
}

} // namespace uiutils
