#include "service/kivcontextobject_p.h"

#include "service/itemregistry_p.h"
#include "service/kivdata_p.h"

#include <QDebug>

#include <algorithm>

using uiutils::KivDataPrivate;

namespace {

/// All that exist.
QVector<KIVContextObject*>& contextObjects()
{
    static auto& objects = *new QVector<KIVContextObject*>;
    return objects;
}

} // namespace

KIVContextObject::KIVContextObject(const QMap<QString, KivData*>& items, QObject* parent)
    : KIVContextObject(namesOf(items), parent)
{
}

KIVContextObject::KIVContextObject(const Names& names, QObject* parent)
    : DynamicObject("KIVContextObject", names.names, qRegisterMetaType<KivData*>(), Changes::Told, parent)
    , m_items(names.items)
{
    contextObjects().append(this);
}

KIVContextObject::~KIVContextObject()
{
    contextObjects().removeOne(this);
}

void KIVContextObject::evaluateNames()
{
    QVector<QPointer<KIVContextObject>> objects;
    for (KIVContextObject* object : qAsConst(contextObjects()))
        objects.append(object);
    for (const QPointer<KIVContextObject>& object : qAsConst(objects)) {
        if (object)
            object->tellOfChanges();
    }
    uiutils::itemregistry::tellNameUsers(uiutils::itemregistry::Told::All);
}

KIVContextObject::Names KIVContextObject::namesOf(const QMap<QString, KivData*>& items)
{
    QVector<QPair<QByteArray, Item>> named;
    named.reserve(items.size());
    for (auto it = items.cbegin(); it != items.cend(); ++it) {
        QByteArray name = *it ? KivDataPrivate::of(*it)->contextName().toUtf8() : QByteArray();
        if (!name.isEmpty())
            named.append({std::move(name), {it.key(), *it}});
    }
    // Stable, so that of equal names the last one stays the last.
    std::stable_sort(named.begin(), named.end(), [](const auto& a, const auto& b) { return a.first < b.first; });

    Names names;
    names.names.reserve(named.size());
    names.items.reserve(named.size());
    for (auto it = named.begin(); it != named.end(); ++it) {
        if (it + 1 != named.end() && (it + 1)->first == it->first)
            continue;
        names.names.append(std::move(it->first));
        names.items.append(it->second);
    }
    static bool isReported = false;
    if (names.names.size() > maximumProperties && !isReported) {
        isReported = true;
        qWarning("%d service items have names, but QML can know only %d. Those after %s are left out.",
                names.names.size(), maximumProperties, names.names.at(maximumProperties - 1).constData());
    }
    return names;
}

void KIVContextObject::readProperty(int index, void* result) const
{
    const Item& item = m_items.at(index);
    KivData* wrapper = item.wrapper;
    if (!wrapper) {
        wrapper = uiutils::itemregistry::find(item.id);
        if (wrapper && KivDataPrivate::of(wrapper)->contextName().toUtf8() != nameOf(index))
            wrapper = nullptr;
    }
    *static_cast<KivData**>(result) = wrapper;
}
