#include "plotbounds.h"

#include <QPointF>

#include <cmath>

namespace uiutils {

namespace {

constexpr int mostCorners = 10 * 1000;

QPointF cornerOf(const QVariant& value)
{
    const QVariantList pair = value.toList();
    if (pair.size() >= 2)
        return {pair.at(0).toDouble(), pair.at(1).toDouble()};
    return value.canConvert<QPointF>() ? value.toPointF() : QPointF(std::nan(""), std::nan(""));
}

QVector<QPointF> cornersOf(const QVariantList& points)
{
    QVector<QPointF> corners;
    for (const QVariant& value : points) {
        const QPointF corner = cornerOf(value);
        if (!std::isfinite(corner.x()) || !std::isfinite(corner.y()))
            continue;
        if (corners.size() >= mostCorners || (!corners.isEmpty() && corner.x() < corners.constLast().x()))
            break;
        corners += corner;
    }
    return corners;
}

/// Whether a property with that value changes; two that are not numbers are alike.
bool differs(double one, double other)
{
    return one != other && !(std::isnan(one) && std::isnan(other));
}

} // namespace

PlotBounds::PlotBounds(QObject* parent)
    : QObject(parent)
{
    connect(this, &PlotBounds::labelChanged, this, &PlotBounds::changed);
    connect(this, &PlotBounds::statusChanged, this, &PlotBounds::changed);
}

void PlotBounds::setLabel(const QString& label)
{
    if (label == m_label)
        return;
    m_label = label;
    Q_EMIT labelChanged();
}

void PlotBounds::setStatus(int status)
{
    const Status::Code code = status == Status::Marginal ? Status::Marginal : Status::Fail;
    if (code == m_status)
        return;
    m_status = code;
    Q_EMIT statusChanged();
}

CurveBound PlotBounds::bound(CurveBound::Side side, const QVector<QPointF>& points) const
{
    return {side, points, m_status, m_label};
}

PlotLimitItem::PlotLimitItem(QObject* parent)
    : PlotBounds(parent)
{
    connect(this, &PlotLimitItem::lowerChanged, this, &PlotBounds::changed);
    connect(this, &PlotLimitItem::upperChanged, this, &PlotBounds::changed);
}

void PlotLimitItem::setLower(double lower)
{
    if (!differs(lower, m_lower))
        return;
    m_lower = lower;
    Q_EMIT lowerChanged();
}

void PlotLimitItem::setUpper(double upper)
{
    if (!differs(upper, m_upper))
        return;
    m_upper = upper;
    Q_EMIT upperChanged();
}

QVector<CurveBound> PlotLimitItem::bounds() const
{
    QVector<CurveBound> bounds;
    if (std::isfinite(m_upper))
        bounds += bound(CurveBound::Upper, {{0, m_upper}});
    if (std::isfinite(m_lower))
        bounds += bound(CurveBound::Lower, {{0, m_lower}});
    return bounds;
}

PlotMaskItem::PlotMaskItem(QObject* parent)
    : PlotBounds(parent)
{
    connect(this, &PlotMaskItem::pointsChanged, this, &PlotBounds::changed);
    connect(this, &PlotMaskItem::sideChanged, this, &PlotBounds::changed);
}

void PlotMaskItem::setPoints(const QVariantList& points)
{
    m_points = points;
    m_corners = cornersOf(points);
    Q_EMIT pointsChanged();
}

void PlotMaskItem::setSide(Side side)
{
    if (side == m_side)
        return;
    m_side = side;
    Q_EMIT sideChanged();
}

/// A mask of one corner would be a level.
QVector<CurveBound> PlotMaskItem::bounds() const
{
    if (m_corners.size() < 2)
        return {};
    return {bound(m_side == Upper ? CurveBound::Upper : CurveBound::Lower, m_corners)};
}

} // namespace uiutils
