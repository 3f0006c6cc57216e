#include "scene.h"

#include "itemkinds.h"
#include "texts.h"

#include <QAccessible>
#include <QQuickItem>
#include <QQuickWindow>

#include <algorithm>

namespace uiutils::audit {

namespace {

// What is fainter is not seen.
constexpr double leastOpacity = 0.02;
// What is narrower is closed, such as a section without its contents.
constexpr double leastWidth = 1;

struct Surroundings
{
    QRectF clip;
    QRectF room;
    const QQuickItem* scroller = nullptr;
    double opacity = 1;
};

class Walk
{
public:
    explicit Walk(const QSizeF& window)
        : m_window(window)
    {
    }

    void visit(const QQuickItem* item, Surroundings around);
    Scene takeScene();

private:
    void record(const QQuickItem* item, const Surroundings& around);
    Shown shown(const QQuickItem* item, const QRectF& area, const Surroundings& around) const;
    void removeCovered(QVector<Shown>& all) const;

    QSizeF m_window;
    Scene m_scene;
    QVector<Cover> m_covers;
    int m_order = 0;
};

QList<const QQuickItem*> inPaintOrder(const QQuickItem* parent)
{
    const QList<QQuickItem*> children = parent->childItems();
    QList<const QQuickItem*> sorted(children.begin(), children.end());
    std::stable_sort(sorted.begin(), sorted.end(),
            [](const QQuickItem* one, const QQuickItem* other) { return one->z() < other->z(); });
    return sorted;
}

// Contents of what scrolls may be anywhere in it, and have to stay there.
void enterScroller(const QQuickItem* scroller, Surroundings& around)
{
    const auto* const content = scroller->property("contentItem").value<QQuickItem*>();
    around.scroller = scroller;
    if (!content)
        return;
    const QRectF contents = contentArea(scroller);
    QRectF room = content->mapRectToScene(contents);
    // Where it does not scroll, what is around it counts.
    if (contents.width() <= scroller->width()) {
        room.setLeft(std::max(room.left(), around.room.left()));
        room.setRight(std::min(room.right(), around.room.right()));
    }
    if (contents.height() <= scroller->height()) {
        room.setTop(std::max(room.top(), around.room.top()));
        room.setBottom(std::min(room.bottom(), around.room.bottom()));
    }
    around.room = room;
}

Surroundings inside(const QQuickItem* item, Surroundings around)
{
    const QRectF area = item->mapRectToScene(QRectF(QPointF(), item->size()));
    if (item->clip())
        around.clip &= area;
    if (isScroller(item))
        enterScroller(item, around);
    else if (isSurface(item))
        around.room &= area;
    return around;
}

void Walk::visit(const QQuickItem* item, Surroundings around)
{
    around.opacity *= item->opacity();
    if (!item->isVisible() || around.opacity < leastOpacity)
        return;
    record(item, around);
    const Surroundings within = inside(item, around);
    if (!isScroller(item) && item->clip() && std::min(item->width(), item->height()) < leastWidth)
        return;
    const QList<const QQuickItem*> children = inPaintOrder(item);
    for (const QQuickItem* child : children)
        visit(child, within);
}

void Walk::record(const QQuickItem* item, const Surroundings& around)
{
    ++m_order;
    if (isScroller(item))
        m_scene.scrollers += item;
    if (isTarget(item))
        m_scene.targets += shown(item, touchedArea(item), around);
    if (isText(item) && !paintedArea(item).isEmpty())
        m_scene.texts += shown(item, paintedArea(item), around);
    if (isIcon(item))
        m_scene.icons += shown(item, QRectF(QPointF(), item->size()), around);
    if (isCover(item, around.opacity, m_window))
        m_covers += {item, item->mapRectToScene(QRectF(QPointF(), item->size())) & around.clip, m_order};
}

Shown Walk::shown(const QQuickItem* item, const QRectF& area, const Surroundings& around) const
{
    const QRectF place = item->mapRectToScene(area);
    return {item, place, place & around.clip, around.room, around.scroller, around.opacity, m_order};
}

void Walk::removeCovered(QVector<Shown>& all) const
{
    const auto isCovered = [this](const Shown& shown) {
        return std::any_of(m_covers.begin(), m_covers.end(), [&shown](const Cover& cover) {
            // The background of a button covers what is behind the button.
            return cover.order > shown.order && !shown.seen.isEmpty() && cover.area.contains(shown.seen)
                    && !shown.item->isAncestorOf(cover.item);
        });
    };
    all.erase(std::remove_if(all.begin(), all.end(), isCovered), all.end());
}

Scene Walk::takeScene()
{
    removeCovered(m_scene.targets);
    removeCovered(m_scene.texts);
    removeCovered(m_scene.icons);
    return m_scene;
}

QString wordsOf(const QQuickItem* item)
{
    const QString text = item->property("text").toString();
    if (!text.isEmpty())
        return text;
    QAccessibleInterface* const face = QAccessible::queryAccessibleInterface(const_cast<QQuickItem*>(item));
    return face ? face->text(QAccessible::Name) : QString();
}

} // namespace

QString typeOf(const QQuickItem* item)
{
    const QString name = QString::fromLatin1(item->metaObject()->className()).section(QLatin1String("_QML"), 0, 0);
    return name.startsWith(QLatin1String("QQuick")) ? name.mid(6) : name;
}

bool isOwnType(const QQuickItem* item)
{
    return QByteArray(item->metaObject()->className()).contains("_QMLTYPE_");
}

Scene readScene(const QQuickWindow* window)
{
    Walk walk(window->size());
    const QRectF all(QPointF(), window->size());
    walk.visit(window->contentItem(), {all, all});
    return walk.takeScene();
}

Scene within(Scene scene, const QQuickItem* item)
{
    const auto isOutside = [item](const QQuickItem* other) { return !item->isAncestorOf(other); };
    const auto isShownOutside = [&](const Shown& shown) { return isOutside(shown.item); };
    for (QVector<Shown>* all : {&scene.targets, &scene.texts, &scene.icons})
        all->erase(std::remove_if(all->begin(), all->end(), isShownOutside), all->end());
    scene.scrollers.erase(
            std::remove_if(scene.scrollers.begin(), scene.scrollers.end(), isOutside), scene.scrollers.end());
    return scene;
}

bool mayElide(const QQuickItem* item)
{
    for (; item; item = item->parentItem()) {
        const QVariant allowed = item->property("mayElide");
        if (allowed.isValid())
            return allowed.toBool();
    }
    return false;
}

QString nameOf(const QQuickItem* item)
{
    constexpr int longestText = 40;
    constexpr int mostParents = 3;
    QString name = typeOf(item);
    if (!item->objectName().isEmpty())
        name += QLatin1Char(' ') + item->objectName();
    const QString words = wordsOf(item).simplified().left(longestText);
    if (!words.isEmpty())
        name += QStringLiteral(" \"%1\"").arg(words);
    int parents = 0;
    for (const QQuickItem* parent = item->parentItem(); parent && parents < mostParents;
            parent = parent->parentItem()) {
        if (!isOwnType(parent) && parent->objectName().isEmpty())
            continue;
        name = Texts::tr("%1 in %2").arg(name, (typeOf(parent) + QLatin1Char(' ') + parent->objectName()).trimmed());
        ++parents;
    }
    return name;
}

} // namespace uiutils::audit
