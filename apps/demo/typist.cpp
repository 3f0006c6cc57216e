#include "typist.h"

#include "touch.h"

#include <QQuickItem>
#include <QQuickWindow>

namespace uiutils::demo {

namespace {

/// Whether the keyboard has come, or will.
bool serves(const QObject* keyboard)
{
    return keyboard && qgetenv("QT_IM_MODULE") == "qtvirtualkeyboard"
            && keyboard->property("panel").value<QQuickItem*>();
}

/// What the field shows, with what is not committed yet.
QString shownIn(const QQuickItem* field)
{
    return field->property("text").toString() + field->property("preeditText").toString();
}

bool isKey(const QQuickItem* item)
{
    return item->isEnabled() && item->metaObject()->indexOfProperty("noKeyEvent") >= 0;
}

bool isHidingKey(const QQuickItem* item)
{
    return isKey(item) && QByteArray(item->metaObject()->className()).startsWith("HideKeyboardKey");
}

} // namespace

Typist::Typist(QQuickWindow* window, Touch* touch)
    : m_window(window)
    , m_touch(touch)
{
}

QQuickItem* Typist::keyOf(int code) const
{
    return m_touch->findIf([code](const QQuickItem* item) { return isKey(item) && item->property("key") == code; });
}

QQuickItem* Typist::keyOf(QChar letter) const
{
    const QString text(letter.toLower());
    return m_touch->findIf([text](const QQuickItem* item) { return isKey(item) && item->property("text") == text; });
}

bool Typist::hasKeysFor(const QString& text) const
{
    for (const QChar letter : text) {
        if (!keyOf(letter))
            return false;
    }
    return true;
}

bool Typist::type(const QString& text)
{
    const QObject* const keyboard = m_window->findChild<QObject*>(QStringLiteral("screenKeyboard"));
    const bool isOpen = keyboard && keyboard->property("isOpen").toBool();
    if (m_isTyped) {
        // It would cover what is pressed next.
        if (isOpen)
            pressOnce(m_touch->findIf(isHidingKey));
        else
            m_isTyped = m_isPressed = false;
        return !isOpen;
    }
    const QQuickItem* const field = m_window->activeFocusItem();
    if (!field || !field->inherits("QQuickTextInput") || (serves(keyboard) && !isOpen))
        return false;
    if (isOpen && hasKeysFor(text)) {
        pressNext(text, shownIn(field));
    } else {
        m_touch->type(text);
        m_touch->key(Qt::Key_Return);
        m_isTyped = true;
    }
    return false;
}

/// One key; its effect comes later.
void Typist::pressNext(const QString& text, const QString& shown)
{
    if (shown != m_before)
        m_isPressed = false;
    m_before = shown;
    if (shown == text) {
        pressOnce(keyOf(Qt::Key_Return));
        m_isTyped = m_isPressed;
        m_isPressed = false;
        m_hasUsedScreen = true;
        return;
    }
    if (!text.startsWith(shown))
        return pressOnce(keyOf(Qt::Key_Backspace));
    const QChar next = text.at(shown.size());
    QQuickItem* const key = keyOf(next);
    const bool isUpper = key && key->property("uppercased").toBool();
    // The layout shows its letters in the other case afterwards.
    if (next.isLetter() && isUpper != next.isUpper() && !m_isPressed)
        m_touch->press(keyOf(Qt::Key_Shift));
    else
        pressOnce(key);
}

void Typist::pressOnce(QQuickItem* key)
{
    if (!key || m_isPressed)
        return;
    m_touch->press(key);
    m_isPressed = true;
}

} // namespace uiutils::demo
