#include "openers.h"

#include "itemkinds.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QQuickWindow>

#include <functional>

namespace uiutils::audit {

namespace {

bool hasFunction(const QObject* object, const char* signature)
{
    return object->metaObject()->indexOfMethod(signature) >= 0;
}

bool says(const QObject* object, const char* property, bool otherwise)
{
    const QVariant said = object->property(property);
    return said.isValid() ? said.toBool() : otherwise;
}

void collect(QQuickItem* item, QVector<Opener>& openers)
{
    if (!item->isVisible() || !item->isEnabled() || item->inherits("QQuickOverlay"))
        return;
    if (item->inherits("QQuickComboBox"))
        openers += {item, item->property("popup").value<QObject*>(), "open"};
    const bool isServed = says(item, "isReady", true) && !says(item, "readOnly", false);
    if (isServed && hasFunction(item, "openPad()") && says(item, "hasPad", true))
        openers += {item, item, "openPad"};
    if (isServed && hasFunction(item, "openPicker()"))
        openers += {item, item, "openPicker"};
    const QList<QQuickItem*> children = item->childItems();
    for (QQuickItem* child : children)
        collect(child, openers);
}

/// Transitions end within the time.
void waitUntil(const std::function<bool()>& isDone)
{
    constexpr int patienceMs = 2000;
    QElapsedTimer time;
    time.start();
    while (!isDone() && time.elapsed() < patienceMs)
        QCoreApplication::processEvents(QEventLoop::AllEvents, patienceMs / 100);
}

/// A popup and its item are one thing in two objects.
QObject* popupOf(const QQuickItem* item)
{
    return item->parent();
}

} // namespace

QVector<Opener> openersIn(const QQuickWindow* window)
{
    QVector<Opener> openers;
    collect(window->contentItem(), openers);
    return openers;
}

QQuickItem* topPopup(const QQuickWindow* window)
{
    QQuickItem* top = nullptr;
    const QList<QQuickItem*> layers = window->contentItem()->childItems();
    for (const QQuickItem* layer : layers) {
        if (!layer->inherits("QQuickOverlay"))
            continue;
        const QList<QQuickItem*> popups = layer->childItems();
        for (QQuickItem* popup : popups) {
            const bool isOpen = popup->inherits("QQuickPopupItem") && popup->isVisible() && popup->opacity() > 0;
            if (isOpen && (!top || popup->z() >= top->z()))
                top = popup;
        }
    }
    return top;
}

const QQuickItem* fieldOf(const QQuickItem* opener)
{
    if (isEditor(opener) || opener->inherits("QQuickComboBox"))
        return opener;
    const QList<QQuickItem*> children = opener->childItems();
    for (const QQuickItem* child : children) {
        if (const QQuickItem* const field = fieldOf(child))
            return field;
    }
    return nullptr;
}

bool isDimming(const QQuickItem* popup)
{
    return popupOf(popup)->property("modal").toBool() && popupOf(popup)->property("dim").toBool();
}

void close(QQuickItem* popup)
{
    QMetaObject::invokeMethod(popupOf(popup), "close");
    const QPointer<QQuickItem> closing(popup);
    waitUntil([&] { return !closing || !closing->isVisible(); });
}

void waitForPopup(const QQuickWindow* window)
{
    waitUntil([window] {
        const QQuickItem* const top = topPopup(window);
        return !top || popupOf(top)->property("opened").toBool();
    });
}

} // namespace uiutils::audit
