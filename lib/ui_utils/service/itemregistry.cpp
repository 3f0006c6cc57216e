#include "service/itemregistry_p.h"

#include <QHash>
#include <QQmlContext>

namespace uiutils::itemregistry {

namespace {

using Displaced = QHash<QString, QVector<KivData*>>;

// None of these is ever destroyed, because wrappers may outlive every other static object.
Displaced& displacedById()
{
    static auto& wrappers = *new Displaced;
    return wrappers;
}

QVector<NameUser*>& nameUsers()
{
    static auto& users = *new QVector<NameUser*>;
    return users;
}

} // namespace

QMap<QString, KivData*>& entries()
{
    static auto& entries = *new QMap<QString, KivData*>;
    return entries;
}

QPointer<QQmlContext>& qmlContext()
{
    static auto& context = *new QPointer<QQmlContext>;
    return context;
}

KivData* find(const QString& id)
{
    return entries().value(id);
}

void enter(const QString& id, KivData* wrapper)
{
    QMap<QString, KivData*>& all = entries();
    const auto place = all.lowerBound(id);
    if (place == all.end() || id < place.key()) {
        all.insert(place, id, wrapper);
        return;
    }
    if (*place)
        displacedById()[id].append(*place);
    *place = wrapper;
}

void forget(const QString& id, const KivData* wrapper)
{
    const auto entry = entries().find(id);
    if (entry == entries().end())
        return;
    Displaced& all = displacedById();
    const auto earlier = all.find(id);
    if (earlier == all.end()) {
        if (*entry == wrapper)
            *entry = nullptr;
        return;
    }
    if (*entry == wrapper)
        *entry = earlier->takeLast();
    else
        earlier->removeOne(const_cast<KivData*>(wrapper));
    if (earlier->isEmpty())
        all.erase(earlier);
}

QVector<KivData*> displaced(const QString& id)
{
    return displacedById().value(id);
}

bool hasDisplaced()
{
    return !displacedById().isEmpty();
}

NameUser::NameUser()
{
    nameUsers().append(this);
}

NameUser::~NameUser()
{
    nameUsers().removeOne(this);
}

void tellNameUsers(Told told)
{
    // Each may delete others.
    const QVector<NameUser*> users = nameUsers();
    for (NameUser* user : users) {
        if (nameUsers().contains(user))
            user->look(told);
    }
}

} // namespace uiutils::itemregistry
