#include "plotgestures.h"

#include "plotview.h"

#include <QGuiApplication>
#include <QStyleHints>

#include <algorithm>
#include <cmath>

namespace uiutils {

namespace {

// One direction is meant if it has so many times the other's way.
constexpr double clearly = 2;
// Fingers that touch cannot be told apart.
constexpr double leastDistance = 10;

double lengthOf(const QPointF& way)
{
    return std::hypot(way.x(), way.y());
}

} // namespace

void PlotGestures::take(const QVector<QPointF>& fingers, quint64 time, double cursor, double reach)
{
    const int before = m_fingers;
    m_fingers = fingers.size();
    if (fingers.isEmpty())
        release(time);
    else if (fingers.size() > 2)
        m_state = Over;
    else if (fingers.size() == 2 && before != 2)
        startPinch(fingers.at(0), fingers.at(1));
    else if (fingers.size() == 2)
        movePinch(fingers.at(0), fingers.at(1));
    else if (before == 0)
        press(fingers.at(0), cursor, reach);
    else if (before == 1)
        moveOne(fingers.at(0));
    else
        // One finger of two is lifted: the other one does not begin anything.
        m_state = Over;
}

void PlotGestures::cancel()
{
    m_state = Idle;
    m_fingers = 0;
    m_hasTap = false;
}

void PlotGestures::press(const QPointF& at, double cursor, double reach)
{
    m_state = Pressed;
    m_start = m_last = at;
    m_isOnCursor = std::abs(at.x() - cursor) <= reach;
}

void PlotGestures::moveOne(const QPointF& to)
{
    const QPointF way = to - m_start;
    if (m_state == Pressed && lengthOf(way) >= QGuiApplication::styleHints()->startDragDistance())
        startPan(way);
    if (m_state == MovingCursor)
        Q_EMIT cursorMoved(to.x());
    if (m_state == Panning)
        Q_EMIT panned({m_pansX ? to.x() - m_last.x() : 0, m_pansY ? to.y() - m_last.y() : 0});
    m_last = to;
}

void PlotGestures::startPan(const QPointF& way)
{
    m_hasTap = false;
    m_state = m_isOnCursor ? MovingCursor : Panning;
    m_pansX = std::abs(way.y()) < clearly * std::abs(way.x());
    m_pansY = std::abs(way.x()) < clearly * std::abs(way.y());
    // What was not moved before the finger's intention was known.
    m_last = m_start;
}

void PlotGestures::startPinch(const QPointF& first, const QPointF& second)
{
    const double x = std::abs(second.x() - first.x());
    const double y = std::abs(second.y() - first.y());
    m_hasTap = false;
    m_state = Pinching;
    m_pinchAxes = x > clearly * y ? PlotView::X : y > clearly * x ? PlotView::Y : PlotView::Both;
    m_distance = std::max(leastDistance, lengthOf(second - first));
    m_last = (first + second) / 2;
}

void PlotGestures::movePinch(const QPointF& first, const QPointF& second)
{
    if (m_state != Pinching)
        return;
    const QPointF center = (first + second) / 2;
    const double distance = std::max(leastDistance, lengthOf(second - first));
    const QPointF by = center - m_last;
    Q_EMIT panned({m_pinchAxes & PlotView::X ? by.x() : 0, m_pinchAxes & PlotView::Y ? by.y() : 0});
    Q_EMIT zoomed(distance / m_distance, center, m_pinchAxes);
    m_distance = distance;
    m_last = center;
}

void PlotGestures::release(quint64 time)
{
    if (m_state == Pressed)
        tap(time);
    m_state = Idle;
}

void PlotGestures::tap(quint64 time)
{
    const QStyleHints* hints = QGuiApplication::styleHints();
    const bool isSecond = m_hasTap && time - m_tapTime <= quint64(hints->mouseDoubleClickInterval())
            && lengthOf(m_start - m_tapPlace) <= 3 * hints->startDragDistance();
    m_hasTap = !isSecond;
    m_tapTime = time;
    m_tapPlace = m_start;
    if (isSecond)
        Q_EMIT doubleTapped();
    else
        Q_EMIT tapped(m_start);
}

} // namespace uiutils
