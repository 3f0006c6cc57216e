#pragma once

#include <QPointF>
#include <QString>

#include <functional>

class QQuickItem;
class QQuickWindow;

namespace uiutils::demo {

/// Uses a window as a finger and a keyboard do, by events.
class Touch
{
public:
    explicit Touch(QQuickWindow* window);

    /// The item at that path that a user could press now: visible, enabled, within the window. A path has objectNames,
    /// each below the one before, separated by "/"; "#2" is the third button below, "=Save" the one with that text. Null
    /// without one; an item that is scrolled away is scrolled into sight first, and found at a later call.
    QQuickItem* find(const QString& path) const;
    /// The topmost visible item of that kind; null without one.
    QQuickItem* findIf(const std::function<bool(const QQuickItem*)>& isWanted) const;

    /// `along` is the part of the item's width that is left of the finger.
    void press(QQuickItem* item, double along = 0.5);
    /// Ends a press where it began; does nothing without one.
    void release();
    bool isPressed() const { return m_isPressed; }

    /// Begins to drag what is in an area by so many pixels, to the right and down.
    void drag(QQuickItem* area, const QPointF& by);
    /// Does the next of a press: a part of its way, or its end. A window takes one move in each frame.
    void goOn();

    /// Replaces the text of the field that has the focus.
    void type(const QString& text) const;
    void key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;

private:
    void send(int type, Qt::TouchPointState state) const;

    QQuickWindow* const m_window;
    QPointF m_start;
    QPointF m_place;
    /// What is left of the way of a drag, in equal parts.
    QPointF m_part;
    int m_parts = 0;
    bool m_isPressed = false;
};

} // namespace uiutils::demo
