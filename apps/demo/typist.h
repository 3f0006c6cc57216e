#pragma once

#include <QString>

class QObject;
class QQuickItem;
class QQuickWindow;

namespace uiutils::demo {

class Touch;

/// Types into the field that has the focus: on the on-screen keyboard where that serves, otherwise as a keyboard does.
/// It owns none of its arguments.
class Typist
{
public:
    Typist(QQuickWindow* window, Touch* touch);

    /// Does the next of what replaces the field's text by another one, and enters that; to be called again and again,
    /// without another press in between, until it returns true.
    bool type(const QString& text);
    /// Whether a text was typed on the on-screen keyboard.
    bool hasUsedScreen() const { return m_hasUsedScreen; }

private:
    void pressNext(const QString& text, const QString& shown);
    void pressOnce(QQuickItem* key);
    QQuickItem* keyOf(int code) const;
    QQuickItem* keyOf(QChar letter) const;
    bool hasKeysFor(const QString& text) const;

    QQuickWindow* const m_window;
    Touch* const m_touch;
    // What was to be seen when a key was pressed; no other one is pressed until that has changed.
    QString m_before;
    bool m_isPressed = false;
    bool m_isTyped = false;
    bool m_hasUsedScreen = false;
};

} // namespace uiutils::demo
