#include "touch.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QList>
#include <QQuickItem>
#include <QQuickWindow>
#include <QStringList>
#include <QTouchDevice>
#include <QTouchEvent>

#include <algorithm>

namespace uiutils::demo {

namespace {

QTouchDevice* screen()
{
    static QTouchDevice device;
    device.setType(QTouchDevice::TouchScreen);
    device.setCapabilities(QTouchDevice::Position);
    return &device;
}

/// Everything visible below, as it is painted: the last is on top.
void collect(QQuickItem* item, QList<QQuickItem*>* found)
{
    const QList<QQuickItem*> children = item->childItems();
    for (QQuickItem* child : children) {
        if (!child->isVisible())
            continue;
        found->append(child);
        collect(child, found);
    }
}

QQuickItem* findPart(QQuickItem* root, const QString& part)
{
    QList<QQuickItem*> items;
    collect(root, &items);
    const bool isNumber = part.startsWith(QLatin1Char('#'));
    const bool isText = part.startsWith(QLatin1Char('='));
    QList<QQuickItem*> matches;
    for (QQuickItem* item : qAsConst(items)) {
        const bool isButton = item->inherits("QQuickAbstractButton");
        const bool isMatch = isNumber ? isButton
                : isText              ? isButton && item->property("text").toString() == part.mid(1)
                                      : item->objectName() == part;
        if (isMatch)
            matches += item;
    }
    return isNumber ? matches.value(part.mid(1).toInt()) : matches.isEmpty() ? nullptr : matches.constLast();
}

QRectF placeOf(const QQuickItem* item)
{
    return item->mapRectToScene(QRectF(0, 0, item->width(), item->height()));
}

/// The area that scrolls the item, if its middle is outside of the area's sight.
QQuickItem* hidingArea(QQuickItem* item)
{
    const QPointF middle = placeOf(item).center();
    for (QQuickItem* area = item->parentItem(); area; area = area->parentItem()) {
        if (area->clip() && !placeOf(area).contains(middle))
            return area;
    }
    return nullptr;
}

} // namespace

Touch::Touch(QQuickWindow* window)
    : m_window(window)
{
}

QQuickItem* Touch::find(const QString& path) const
{
    QQuickItem* item = m_window->contentItem();
    const QStringList parts = path.split(QLatin1Char('/'));
    for (int i = 0; item && i < parts.size(); ++i)
        item = findPart(item, parts.at(i));
    if (!item || !item->isEnabled() || item->width() <= 0)
        return nullptr;
    if (QQuickItem* const area = hidingArea(item)) {
        // Lists are dragged by whoever wants a row.
        if (area->metaObject()->indexOfMethod("reveal(QVariant)") >= 0)
            QMetaObject::invokeMethod(area, "reveal", Q_ARG(QVariant, QVariant::fromValue(item)));
        return nullptr;
    }
    return QRectF(QPointF(), m_window->size()).contains(placeOf(item).center()) ? item : nullptr;
}

QQuickItem* Touch::findIf(const std::function<bool(const QQuickItem*)>& isWanted) const
{
    QList<QQuickItem*> items;
    collect(m_window->contentItem(), &items);
    const auto found = std::find_if(items.crbegin(), items.crend(), isWanted);
    return found == items.crend() ? nullptr : *found;
}

void Touch::send(int type, Qt::TouchPointState state) const
{
    QTouchEvent::TouchPoint point(1);
    point.setState(state);
    point.setPos(m_place);
    point.setScenePos(m_place);
    point.setStartPos(m_start);
    point.setStartScenePos(m_start);
    point.setScreenPos(m_window->mapToGlobal(m_place.toPoint()));
    QTouchEvent event(QEvent::Type(type), screen(), Qt::NoModifier, state, {point});
    event.setWindow(m_window);
    QCoreApplication::sendEvent(m_window, &event);
}

void Touch::press(QQuickItem* item, double along)
{
    const QRectF place = placeOf(item);
    m_start = m_place = {place.left() + along * place.width(), place.center().y()};
    m_parts = 0;
    m_isPressed = true;
    send(QEvent::TouchBegin, Qt::TouchPointPressed);
}

void Touch::drag(QQuickItem* area, const QPointF& by)
{
    constexpr int steps = 8;
    press(area);
    m_part = by / steps;
    m_parts = steps;
}

void Touch::goOn()
{
    if (m_parts == 0)
        return release();
    --m_parts;
    m_place += m_part;
    send(QEvent::TouchUpdate, Qt::TouchPointMoved);
}

void Touch::release()
{
    if (!m_isPressed)
        return;
    m_isPressed = false;
    send(QEvent::TouchEnd, Qt::TouchPointReleased);
}

void Touch::type(const QString& text) const
{
    key(Qt::Key_A, Qt::ControlModifier);
    key(Qt::Key_Delete);
    for (const QChar letter : text) {
        QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, letter);
        QKeyEvent release(QEvent::KeyRelease, 0, Qt::NoModifier, letter);
        QCoreApplication::sendEvent(m_window, &press);
        QCoreApplication::sendEvent(m_window, &release);
    }
}

void Touch::key(int key, Qt::KeyboardModifiers modifiers) const
{
    QKeyEvent press(QEvent::KeyPress, key, modifiers);
    QKeyEvent release(QEvent::KeyRelease, key, modifiers);
    QCoreApplication::sendEvent(m_window, &press);
    QCoreApplication::sendEvent(m_window, &release);
}

} // namespace uiutils::demo
