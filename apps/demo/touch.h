#pragma once

#include <QPointF>
#include <QString>

class QQuickItem;
class QQuickWindow;

namespace uiutils::demo {

/// Uses a window as a finger and a keyboard do, by events.
class Touch
{
public:
    explicit Touch(QQuickWindow* window);

    /// The item at that path that a user could press now: visible, enabled, within the window. A path has objectNames,
    /// each below the one before, separated by "/"; "#2" is the third button below. Null without one; an item that is
    /// scrolled away is scrolled into sight first, and found at a later call.
    QQuickItem* find(const QString& path) const;

    void press(QQuickItem* item);
    /// Ends a press where it began; does nothing without one.
    void release();
    bool isPressed() const { return m_isPressed; }

    /// Replaces the text of the field that has the focus.
    void type(const QString& text) const;
    void key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;

private:
    void send(int type, Qt::TouchPointState state) const;

    QQuickWindow* const m_window;
    QPointF m_place;
    bool m_isPressed = false;
};

} // namespace uiutils::demo
