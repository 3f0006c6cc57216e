#pragma once

#include "core/status.h"
#include "writers/plots/interval_p.h"

#include <QPointF>
#include <QString>
#include <QVector>

namespace uiutils {

/// What a curve must not exceed: a level, or a line of levels, which holds between its first and its last point.
struct CurveBound
{
    enum Side { Upper, Lower };
    Side side = Upper;
    /// In ascending order of x. One point is a level that holds everywhere.
    QVector<QPointF> points;
    /// How a point beyond it is judged.
    Status::Code status = Status::Fail;
    QString label;

    bool isLevel() const { return points.size() == 1; }
};

/// Judges the points of a curve. Between the points of a bound the plot's straight line counts, also along logarithmic
/// axes: what is seen is what is judged.
class CurveJudge
{
public:
    CurveJudge() = default;
    CurveJudge(const QVector<CurveBound>& bounds, bool isLogarithmicX, bool isLogarithmicY);

    bool isEmpty() const { return m_bounds.isEmpty(); }
    /// The worst of all bounds; Pass for a point that exceeds none.
    Status::Code status(const QPointF& point) const;

private:
    bool exceeds(const CurveBound& bound, const QPointF& point) const;
    double levelAt(const CurveBound& bound, double x) const;

    QVector<CurveBound> m_bounds;
    bool m_isLogarithmicX = false;
    bool m_isLogarithmicY = false;
};

/// Which points of a curve exceed its bounds, so that none of them is lost when points are thinned out.
class CurveVerdicts
{
public:
    void clear();
    /// The judgement of the next point.
    void append(int index, Status::Code status);

    /// The worst of all points; None if none was judged.
    Status::Code worst() const;
    /// The first point of that status from `begin` up to, but not including, `end`; -1 if there is none.
    int firstOf(Status::Code status, int begin, int end) const;
    /// All points of that status, Marginal or Fail, in their order.
    const QVector<int>& all(Status::Code status) const { return status == Status::Fail ? m_failed : m_marginal; }

private:
    QVector<int> m_marginal;
    QVector<int> m_failed;
    bool m_hasPoints = false;
};

} // namespace uiutils
