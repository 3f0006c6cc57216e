#include "local/uidatacontainer_p.h"

#include "local/uidata_p.h"

#include <QPointer>

using uiutils::UiDataContainerPrivate;
using uiutils::UiDataPrivate;

UiDataContainer* UiDataContainer::s_dcInstance = nullptr;

UiDataContainer::UiDataContainer(QObject* parent)
    : QObject(parent)
    , d(std::make_unique<UiDataContainerPrivate>(this))
{
}

UiDataContainer::~UiDataContainer()
{
    // The children are deleted after this and would look for their entries.
    const QList<UiData*> items = d->items.values();
    for (UiData* item : items)
        UiDataPrivate::of(item)->containers.removeAll(this);
    d->items.clear();
    if (s_dcInstance == this)
        s_dcInstance = nullptr;
}

bool UiDataContainer::getAllItemsOk() const
{
    return d->areItemsOk;
}

QMap<QString, UiData*> UiDataContainer::getItems() const
{
    return d->items;
}

UiDataContainer* UiDataContainer::shared()
{
    if (!s_dcInstance)
        s_dcInstance = new UiDataContainer;
    return s_dcInstance;
}

void UiDataContainer::addItem(UiData* item)
{
    if (!item)
        return;
    item->setParent(this);
    const QString id = item->getId();
    d->enter(id, item);
    // A listener to the stored value may delete the item or the container.
    const QPointer<UiData> guard(item);
    const QPointer<UiDataContainer> self(this);
    const auto stored = d->persistentConfig.constFind(id);
    if (item->isPersistent() && stored != d->persistentConfig.cend() && item->getValue() != *stored)
        item->setValue(QVariant(*stored));
    if (!self || !guard)
        return;
    connect(item, &KivData::valueChanged, this, &UiDataContainer::slotValueUpdated, Qt::UniqueConnection);
    slotValueUpdated();
}

void UiDataContainerPrivate::enter(const QString& id, UiData* item)
{
    UiData* former = items.value(id);
    if (former == item)
        return;
    items.insert(id, item);
    ids.insert(item, id);
    UiDataPrivate* parts = UiDataPrivate::of(item);
    parts->updateContainers();
    if (!parts->containers.contains(q)) {
        parts->containers.append(q);
        hindrances += parts->isHindrance ? 1 : 0;
    }
    if (former && ids.remove(former, id) > 0 && !ids.contains(former))
        leave(former);
}

void UiDataContainerPrivate::leave(UiData* item)
{
    UiDataPrivate* parts = UiDataPrivate::of(item);
    if (parts->containers.removeAll(q) > 0)
        hindrances -= parts->isHindrance ? 1 : 0;
}

/// By its address, because an item's id may have changed since it was added, and another item may have its place now.
void UiDataContainer::removeItem(UiData* item)
{
    const QStringList ids = d->ids.values(item);
    if (ids.isEmpty())
        return;
    for (const QString& id : ids)
        d->items.remove(id);
    d->ids.remove(item);
    d->leave(item);
}

void UiDataContainer::setPersistentConfigMap(QMap<QString, QVariant> values)
{
    d->persistentConfig = values;
}

void UiDataContainer::slotValueUpdated()
{
    const bool areOk = d->hindrances == 0;
    const QPointer<UiDataContainer> self(this);
    if (areOk != d->areItemsOk) {
        d->areItemsOk = areOk;
        Q_EMIT allItemsOkChanged();
    }
    if (self)
        Q_EMIT valueChanged();
}
