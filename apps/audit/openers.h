#pragma once

#include <QPointer>
#include <QQuickItem>
#include <QVector>

class QQuickWindow;

namespace uiutils::audit {

/// A control of a page from which something opens over the page, such as the list of a choice or the pad of a field.
struct Opener
{
    QPointer<QQuickItem> item;
    /// The function of `target` that opens it.
    QPointer<QObject> target;
    QByteArray open;
};

/// Those that a user can reach: visible and enabled, also those that would have to be scrolled into sight. These are
/// combo boxes, and items with a function openPad() or openPicker(); a property `hasPad` that is false says that there
/// is no pad.
QVector<Opener> openersIn(const QQuickWindow* window);

/// What is open over the page of the window and was opened last, or null.
QQuickItem* topPopup(const QQuickWindow* window);

/// What the user sees of an opener while something is open, such as the field that a pad types into.
const QQuickItem* fieldOf(const QQuickItem* opener);

/// Whether what is behind the popup is dimmed: it shows by itself what it is about.
bool isDimming(const QQuickItem* popup);

/// Closes what topPopup() has found, and waits until it is gone.
void close(QQuickItem* popup);

/// Waits until what is open over the page is where it will be.
void waitForPopup(const QQuickWindow* window);

} // namespace uiutils::audit
