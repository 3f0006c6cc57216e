#pragma once

#include <QRectF>

class QQuickItem;

namespace uiutils::audit {

/// Whether a finger can do something with the item: a control, a field, an area or handler that somebody listens to.
bool isTarget(const QQuickItem* item);
bool isScroller(const QQuickItem* item);
bool isEditor(const QQuickItem* item);
bool isText(const QQuickItem* item);
bool isIcon(const QQuickItem* item);
/// Whether contents have to stay inside the item: a control, a visible surface, or what clips.
bool isSurface(const QQuickItem* item);
/// Whether the item hides what is behind it. The dim behind a modal dialog counts as such for the window under it.
bool isCover(const QQuickItem* item, double opacity, const QSizeF& window);

/// What a text paints, in its own coordinates; empty without letters.
QRectF paintedArea(const QQuickItem* text);
/// What a finger meets, in the item's coordinates.
QRectF touchedArea(const QQuickItem* target);
/// Where the contents of what scrolls have their place, in the coordinates of its content item.
QRectF contentArea(const QQuickItem* scroller);

} // namespace uiutils::audit
