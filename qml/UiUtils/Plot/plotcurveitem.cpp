#include "plotcurveitem.h"

#include "curvefeed.h"

#include <QtMath>

#include <algorithm>

namespace uiutils {

namespace {

constexpr int largestCapacity = 10 * 1000 * 1000;

double onScale(double value, bool isLogarithmic)
{
    return isLogarithmic ? std::log10(value) : value;
}

} // namespace

PlotCurveItem::PlotCurveItem(QObject* parent)
    : QObject(parent)
    , m_feed(std::make_unique<CurveFeed>())
{
    for (const auto signal : {&PlotCurveItem::nameChanged, &PlotCurveItem::unitChanged, &PlotCurveItem::colorChanged,
                 &PlotCurveItem::widthChanged, &PlotCurveItem::rightAxisChanged, &PlotCurveItem::visibleChanged,
                 &PlotCurveItem::verdictChanged})
        connect(this, signal, this, &PlotCurveItem::changed);
    connect(m_feed.get(), &CurveFeed::replaced, this, [this](const QVector<QPointF>& points) { setPoints(points); });
    connect(m_feed.get(), &CurveFeed::added, this, [this](const QVector<QPointF>& points) { append(points); });
}

PlotCurveItem::~PlotCurveItem()
{
    for (PlotBounds* limit : qAsConst(m_limits))
        disconnect(limit, nullptr, this, nullptr);
}

// --- What it is judged by ---

QQmlListProperty<PlotBounds> PlotCurveItem::limits()
{
    return {this, nullptr, &PlotCurveItem::addLimit, &PlotCurveItem::limitCount, &PlotCurveItem::limitAt,
            &PlotCurveItem::clearLimits};
}

void PlotCurveItem::addLimit(QQmlListProperty<PlotBounds>* list, PlotBounds* limit)
{
    auto* curve = static_cast<PlotCurveItem*>(list->object);
    if (!limit || curve->m_limits.contains(limit))
        return;
    curve->m_limits += limit;
    connect(limit, &PlotBounds::changed, curve, &PlotCurveItem::judgeAnew);
    connect(limit, &QObject::destroyed, curve, &PlotCurveItem::dropLimit);
    curve->judgeAnew();
}

int PlotCurveItem::limitCount(QQmlListProperty<PlotBounds>* list)
{
    return static_cast<PlotCurveItem*>(list->object)->m_limits.size();
}

PlotBounds* PlotCurveItem::limitAt(QQmlListProperty<PlotBounds>* list, int index)
{
    return static_cast<PlotCurveItem*>(list->object)->m_limits.value(index);
}

void PlotCurveItem::clearLimits(QQmlListProperty<PlotBounds>* list)
{
    auto* curve = static_cast<PlotCurveItem*>(list->object);
    for (PlotBounds* limit : qAsConst(curve->m_limits))
        disconnect(limit, nullptr, curve, nullptr);
    curve->m_limits.clear();
    curve->judgeAnew();
}

void PlotCurveItem::dropLimit(QObject* limit)
{
    m_limits.erase(std::remove_if(m_limits.begin(), m_limits.end(), [&](PlotBounds* own) { return own == limit; }),
            m_limits.end());
    judgeAnew();
}

QVector<CurveBound> PlotCurveItem::bounds() const
{
    QVector<CurveBound> bounds;
    for (const PlotBounds* limit : m_limits)
        bounds += limit->bounds();
    return bounds;
}

void PlotCurveItem::judgeAnew()
{
    m_judge = CurveJudge(bounds(), m_isLogarithmicX, m_isLogarithmicY);
    m_verdicts.clear();
    judgeFrom(0);
    announceVerdict();
    Q_EMIT changed();
}

void PlotCurveItem::judgeFrom(int index)
{
    for (int i = index; !m_judge.isEmpty() && i < m_store.size(); ++i) {
        if (m_store.isDrawable(m_store.at(i)))
            m_verdicts.append(i, m_judge.status(m_store.at(i)));
    }
}

void PlotCurveItem::announceVerdict()
{
    if (m_verdict == m_verdicts.worst())
        return;
    m_verdict = m_verdicts.worst();
    Q_EMIT verdictChanged();
}

// --- Points ---

void PlotCurveItem::append(double x, double y)
{
    append(QVector<QPointF> {{x, y}});
}

void PlotCurveItem::append(const QVector<QPointF>& points)
{
    if (points.isEmpty())
        return;
    const int first = m_store.size();
    for (const QPointF& point : points)
        m_store.append(point);
    if (m_store.size() > m_capacity)
        discardOldest();
    else
        judgeFrom(first);
    announceVerdict();
    Q_EMIT pointsChanged();
}

void PlotCurveItem::appendPoints(const QVariantList& xs, const QVariantList& ys)
{
    append(plotPoints(xs, ys));
}

void PlotCurveItem::setPoints(const QVariantList& xs, const QVariantList& ys)
{
    setPoints(plotPoints(xs, ys));
}

void PlotCurveItem::setPoints(const QVector<QPointF>& points)
{
    m_store.replace(points.mid(std::max(0, points.size() - m_capacity)));
    m_verdicts.clear();
    judgeFrom(0);
    announceVerdict();
    Q_EMIT pointsChanged();
}

void PlotCurveItem::clear()
{
    setPoints(QVector<QPointF>());
}

/// More than need be, so that it is seldom.
void PlotCurveItem::discardOldest()
{
    m_store.discard(std::min(m_store.size() - 1, m_store.size() - m_capacity + m_capacity / 8));
    m_verdicts.clear();
    judgeFrom(0);
}

void PlotCurveItem::setScales(bool isLogarithmicX, bool isLogarithmicY)
{
    if (isLogarithmicX == m_isLogarithmicX && isLogarithmicY == m_isLogarithmicY)
        return;
    m_isLogarithmicX = isLogarithmicX;
    m_isLogarithmicY = isLogarithmicY;
    m_store.setScales(isLogarithmicX, isLogarithmicY);
    judgeAnew();
}

double PlotCurveItem::lastX() const
{
    const double last = m_store.size() > 0 ? m_store.at(m_store.size() - 1).x() : qQNaN();
    return std::isfinite(last) ? last : qQNaN();
}

double PlotCurveItem::lastY() const
{
    return m_store.size() > 0 ? m_store.at(m_store.size() - 1).y() : qQNaN();
}

double PlotCurveItem::valueAt(double x) const
{
    if (!std::isfinite(x))
        return qQNaN();
    const int after = m_store.isAscending() ? m_store.firstFrom(x) : m_store.firstLineAt(x) + 1;
    if (after >= m_store.size() || (after == 0 && m_store.at(0).x() != x))
        return qQNaN();
    const QPointF& right = m_store.at(after);
    if (right.x() == x && m_store.isDrawable(right))
        return right.y();
    if (after == 0 || !m_store.isDrawable(right) || !m_store.isDrawable(m_store.at(after - 1)))
        return qQNaN();
    const QPointF& left = m_store.at(after - 1);
    const double start = onScale(left.x(), m_isLogarithmicX);
    const double extent = onScale(right.x(), m_isLogarithmicX) - start;
    const double part = extent != 0 ? (onScale(x, m_isLogarithmicX) - start) / extent : 0;
    const double low = onScale(left.y(), m_isLogarithmicY);
    const double value = low + part * (onScale(right.y(), m_isLogarithmicY) - low);
    return m_isLogarithmicY ? std::pow(10, value) : value;
}

int PlotCurveItem::verdictAt(double x) const
{
    const double y = valueAt(x);
    return m_judge.isEmpty() || !std::isfinite(y) ? Status::None : m_judge.status({x, y});
}

// --- Where points come from ---

KivData* PlotCurveItem::xItem() const
{
    return m_feed->xItem();
}

void PlotCurveItem::setXItem(KivData* item)
{
    m_feed->setItems(item, m_feed->yItem());
    Q_EMIT sourceChanged();
}

KivData* PlotCurveItem::yItem() const
{
    return m_feed->yItem();
}

void PlotCurveItem::setYItem(KivData* item)
{
    m_feed->setItems(m_feed->xItem(), item);
    Q_EMIT sourceChanged();
}

QAbstractItemModel* PlotCurveItem::model() const
{
    return m_feed->model();
}

void PlotCurveItem::setModel(QAbstractItemModel* model)
{
    m_feed->setModel(model);
    Q_EMIT sourceChanged();
}

QString PlotCurveItem::xRole() const
{
    return m_feed->xRole();
}

void PlotCurveItem::setXRole(const QString& role)
{
    m_feed->setRoles(role, m_feed->yRole());
    Q_EMIT sourceChanged();
}

QString PlotCurveItem::yRole() const
{
    return m_feed->yRole();
}

void PlotCurveItem::setYRole(const QString& role)
{
    m_feed->setRoles(m_feed->xRole(), role);
    Q_EMIT sourceChanged();
}

// --- How it looks ---

void PlotCurveItem::setName(const QString& name)
{
    if (name == m_name)
        return;
    m_name = name;
    Q_EMIT nameChanged();
}

void PlotCurveItem::setUnit(const QString& unit)
{
    if (unit == m_unit)
        return;
    m_unit = unit;
    Q_EMIT unitChanged();
}

void PlotCurveItem::setColor(const QColor& color)
{
    if (color == m_color)
        return;
    m_color = color;
    Q_EMIT colorChanged();
}

void PlotCurveItem::setWidth(double width)
{
    if (width == m_width)
        return;
    m_width = width;
    Q_EMIT widthChanged();
}

void PlotCurveItem::setRightAxis(bool isRight)
{
    if (isRight == m_isRight)
        return;
    m_isRight = isRight;
    Q_EMIT rightAxisChanged();
}

void PlotCurveItem::setVisible(bool isVisible)
{
    if (isVisible == m_isVisible)
        return;
    m_isVisible = isVisible;
    Q_EMIT visibleChanged();
}

void PlotCurveItem::setCapacity(int capacity)
{
    const int bounded = qBound(1, capacity, largestCapacity);
    if (bounded == m_capacity)
        return;
    m_capacity = bounded;
    if (m_store.size() > m_capacity) {
        discardOldest();
        announceVerdict();
        Q_EMIT pointsChanged();
    }
    Q_EMIT capacityChanged();
}

} // namespace uiutils
