#include "itemkinds.h"

#include <QColor>
#include <QMetaMethod>
#include <QQuickItem>

#include <algorithm>

namespace uiutils::audit {

namespace {

// A dim darkens at least so much.
constexpr double leastDim = 0.2;

struct Listeners : QObject
{
    using QObject::isSignalConnected;
};

bool isHeard(const QObject* object, const char* signal)
{
    const QMetaObject* const type = object->metaObject();
    const int index = type->indexOfSignal(signal);
    return index >= 0 && (object->*&Listeners::isSignalConnected)(type->method(index));
}

bool inheritsAny(const QQuickItem* item, std::initializer_list<const char*> types)
{
    return std::any_of(types.begin(), types.end(), [item](const char* type) { return item->inherits(type); });
}

const QObject* tapHandlerOf(const QQuickItem* item)
{
    const auto& children = item->children();
    const auto isHandler = [](const QObject* child) {
        return child->inherits("QQuickTapHandler") && child->property("enabled").toBool();
    };
    const auto found = std::find_if(children.begin(), children.end(), isHandler);
    return found == children.end() ? nullptr : *found;
}

// An area that only keeps touches from what is under it is no target, nor one that covers its control.
bool isListeningArea(const QQuickItem* item)
{
    if (!item->inherits("QQuickMouseArea") || item->property("acceptedButtons").toInt() == 0)
        return false;
    const QQuickItem* const parent = item->parentItem();
    if (parent && parent->size() == item->size() && isTarget(parent))
        return false;
    return isHeard(item, "clicked(QQuickMouseEvent*)") || isHeard(item, "pressed(QQuickMouseEvent*)")
            || isHeard(item, "released(QQuickMouseEvent*)") || isHeard(item, "pressAndHold(QQuickMouseEvent*)");
}

QColor colorOf(const QQuickItem* item, const char* property = "color")
{
    return item->property(property).value<QColor>();
}

double paddingOf(const QQuickItem* text, const char* side)
{
    return text->property(side).toDouble();
}

double aligned(int alignment, double room, double content)
{
    if (alignment & (Qt::AlignHCenter | Qt::AlignVCenter))
        return (room - content) / 2;
    return alignment & (Qt::AlignRight | Qt::AlignBottom) ? room - content : 0;
}

// A button that is disabled and takes no focus is only what its contents say, such as the heading of a section.
bool isLabel(const QQuickItem* item)
{
    return item->inherits("QQuickAbstractButton") && !item->isEnabled()
            && item->property("focusPolicy").toInt() == Qt::NoFocus;
}

} // namespace

bool isTarget(const QQuickItem* item)
{
    if (isLabel(item))
        return false;
    if (inheritsAny(item,
                {"QQuickAbstractButton", "QQuickComboBox", "QQuickSlider", "QQuickRangeSlider", "QQuickDial",
                        "QQuickSpinBox", "QQuickTumbler"}))
        return true;
    if (isEditor(item))
        return !item->property("readOnly").toBool() && item->isEnabled()
                && item->property("activeFocusOnPress").toBool();
    return isListeningArea(item) || tapHandlerOf(item);
}

bool isScroller(const QQuickItem* item)
{
    return item->inherits("QQuickFlickable");
}

bool isEditor(const QQuickItem* item)
{
    return inheritsAny(item, {"QQuickTextInput", "QQuickTextEdit"});
}

bool isText(const QQuickItem* item)
{
    return item->inherits("QQuickText") || isEditor(item);
}

bool isIcon(const QQuickItem* item)
{
    return item->inherits("uiutils::IconPicture");
}

bool isSurface(const QQuickItem* item)
{
    if (item->clip() || item->inherits("QQuickControl"))
        return true;
    return item->inherits("QQuickRectangle") && colorOf(item).alpha() > 0;
}

bool isCover(const QQuickItem* item, double opacity, const QSizeF& window)
{
    if (!item->inherits("QQuickRectangle"))
        return false;
    const double strength = colorOf(item).alphaF() * opacity;
    const bool isDim = strength >= leastDim && item->width() >= window.width() && item->height() >= window.height();
    return strength >= 1 || isDim;
}

QRectF paintedArea(const QQuickItem* text)
{
    if (text->property("text").toString().isEmpty())
        return {};
    const QSizeF content(text->property("contentWidth").toDouble(), text->property("contentHeight").toDouble());
    const QSizeF room = text->size();
    const double left = paddingOf(text, "leftPadding");
    const double top = paddingOf(text, "topPadding");
    // A field scrolls what does not fit.
    const double width = isEditor(text)
            ? std::min(content.width(), room.width() - left - paddingOf(text, "rightPadding"))
            : content.width();
    const int across = text->property("effectiveHorizontalAlignment").toInt();
    const int down = text->property("verticalAlignment").toInt();
    return {left + aligned(across, room.width() - left - paddingOf(text, "rightPadding"), width),
            top + aligned(down, room.height() - top - paddingOf(text, "bottomPadding"), content.height()), width,
            content.height()};
}

QRectF touchedArea(const QQuickItem* target)
{
    const QRectF area(QPointF(), target->size());
    const QObject* const handler = tapHandlerOf(target);
    const double margin = handler ? handler->property("margin").toDouble() : 0;
    return area.adjusted(-margin, -margin, margin, margin);
}

QRectF contentArea(const QQuickItem* scroller)
{
    const double width = std::max(scroller->property("contentWidth").toDouble(), scroller->width());
    const double height = std::max(scroller->property("contentHeight").toDouble(), scroller->height());
    return {scroller->property("originX").toDouble(), scroller->property("originY").toDouble(), width, height};
}

} // namespace uiutils::audit
