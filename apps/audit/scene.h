#pragma once

#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QVector>

class QQuickItem;
class QQuickWindow;

namespace uiutils::audit {

/// An item of a page that a rule is about. All areas are in pixels of the window.
struct Shown
{
    const QQuickItem* item = nullptr;
    /// What a finger meets, or what a text paints.
    QRectF area;
    /// What clipping leaves of it.
    QRectF seen;
    /// Where it has to stay: the window, the surfaces and controls around it, the contents of what scrolls.
    QRectF room;
    /// The nearest ancestor that scrolls, or null.
    const QQuickItem* scroller = nullptr;
    /// The product of the opacities of the item and its ancestors.
    double opacity = 1;
    /// The place in the order in which the window is painted.
    int order = 0;
};

/// What hides all that was painted before it.
struct Cover
{
    const QQuickItem* item = nullptr;
    QRectF area;
    int order = 0;
};

/// What a window shows at this moment, in the order in which it is painted. What is covered is not part of it.
struct Scene
{
    QVector<Shown> targets;
    QVector<Shown> texts;
    QVector<Shown> icons;
    QVector<const QQuickItem*> scrollers;
};

Scene readScene(const QQuickWindow* window);

/// What of the scene is inside an item.
Scene within(Scene scene, const QQuickItem* item);

/// Whether the item, or one that it stands in, says by a property `mayElide` that its text may be cut.
bool mayElide(const QQuickItem* item);

/// What page writers call the item's type: "TouchButton" of "TouchButton_QMLTYPE_12", "Text" of "QQuickText".
QString typeOf(const QQuickItem* item);
/// Whether the type is a component in a file.
bool isOwnType(const QQuickItem* item);

/// How a page writer finds the item: its text, and the types and names of the items it stands in.
QString nameOf(const QQuickItem* item);

} // namespace uiutils::audit
