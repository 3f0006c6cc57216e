#include "pinchitem.h"

#include <QCoreApplication>
#include <QLineF>
#include <QTouchEvent>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace uiutils::viewer {

namespace {

/// Below this distance the zoom would change in leaps.
constexpr qreal leastDistance = 20;

/// The zoom of one notch of a wheel, which Qt counts as 120.
constexpr qreal factorOfNotch = 1.25;

bool isTouch(const QEvent* event)
{
    return event->type() == QEvent::TouchBegin || event->type() == QEvent::TouchUpdate
            || event->type() == QEvent::TouchEnd || event->type() == QEvent::TouchCancel;
}

} // namespace

PinchItem::PinchItem(QQuickItem* parent)
    : QQuickItem(parent)
{
}

void PinchItem::itemChange(ItemChange change, const ItemChangeData& data)
{
    if (change == ItemSceneChange) {
        if (m_window)
            m_window->removeEventFilter(this);
        m_window = data.window;
        if (m_window)
            m_window->installEventFilter(this);
    }
    QQuickItem::itemChange(change, data);
}

bool PinchItem::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_window && isTouch(event) && !m_isCancelling && isEnabled() && isVisible())
        return takeTouch(static_cast<QTouchEvent*>(event));
    return QQuickItem::eventFilter(watched, event);
}

void PinchItem::wheelEvent(QWheelEvent* event)
{
    if (event->modifiers() != Qt::ControlModifier) {
        event->ignore();
        return;
    }
    Q_EMIT started();
    Q_EMIT pinched(std::pow(factorOfNotch, event->angleDelta().y() / 120.0), event->position());
    event->accept();
}

bool PinchItem::takeTouch(QTouchEvent* event)
{
    QVector<int> fingers;
    QVector<QPointF> places;
    const QList<QTouchEvent::TouchPoint> points = event->touchPoints();
    for (const QTouchEvent::TouchPoint& point : points) {
        if (point.state() == Qt::TouchPointReleased || fingers.size() == 2)
            continue;
        fingers.append(point.id());
        places.append(mapFromScene(point.pos()));
    }
    const bool wasPinching = m_isPinching;
    if (!wasPinching && !(fingers.size() == 2 && contains(places.at(0)) && contains(places.at(1))))
        return false;
    // Until the last finger is up, the rest of a pinch must not become a flick.
    m_isPinching = event->type() != QEvent::TouchCancel && !fingers.isEmpty();
    if (!wasPinching)
        cancelForOthers(event);
    if (fingers.size() == 2) {
        const QLineF line(places.at(0), places.at(1));
        if (!wasPinching || fingers != m_fingers)
            start(fingers, line.length());
        Q_EMIT pinched(std::max(line.length(), leastDistance) / m_startDistance, line.center());
    }
    event->accept();
    return true;
}

void PinchItem::start(const QVector<int>& fingers, qreal distance)
{
    m_fingers = fingers;
    m_startDistance = std::max(distance, leastDistance);
    Q_EMIT started();
}

void PinchItem::cancelForOthers(QTouchEvent* event)
{
    if (event->type() == QEvent::TouchBegin)
        return;
    QTouchEvent cancel(QEvent::TouchCancel, event->device(), event->modifiers());
    cancel.setWindow(event->window());
    m_isCancelling = true;
    QCoreApplication::sendEvent(m_window, &cancel);
    m_isCancelling = false;
}

} // namespace uiutils::viewer
