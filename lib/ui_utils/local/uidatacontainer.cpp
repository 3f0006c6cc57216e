#include "local/uidatacontainer.h"

#include "local/uidata.h"

#include <QPointer>

UiDataContainer* UiDataContainer::s_dcInstance = nullptr;

UiDataContainer::UiDataContainer(QObject* parent)
    : QObject(parent)
{
}

UiDataContainer::~UiDataContainer()
{
    // The children go after this and would look for their entries.
    const QList<UiData*> items = m_items.values();
    for (UiData* item : items)
        item->m_containers.removeAll(this);
    m_items.clear();
    if (s_dcInstance == this)
        s_dcInstance = nullptr;
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
    enter(id, item);
    // Whoever hears of the stored value may end the item or the container.
    const QPointer<UiData> guard(item);
    const QPointer<UiDataContainer> self(this);
    const auto stored = m_persistentConfig.constFind(id);
    if (item->isPersistent() && stored != m_persistentConfig.cend() && item->getValue() != *stored)
        item->setValue(QVariant(*stored));
    if (!self || !guard)
        return;
    connect(item, &KivData::valueChanged, this, &UiDataContainer::slotValueUpdated, Qt::UniqueConnection);
    slotValueUpdated();
}

void UiDataContainer::enter(const QString& id, UiData* item)
{
    UiData* former = m_items.value(id);
    if (former == item)
        return;
    m_items.insert(id, item);
    m_ids.insert(item, id);
    item->tellContainers();
    if (!item->m_containers.contains(this)) {
        item->m_containers.append(this);
        countHindrance(item->m_isHindrance ? 1 : 0);
    }
    if (former && m_ids.remove(former, id) > 0 && !m_ids.contains(former))
        leave(former);
}

void UiDataContainer::leave(UiData* item)
{
    if (item->m_containers.removeAll(this) > 0)
        countHindrance(item->m_isHindrance ? -1 : 0);
}

/// By its address, because an item's id may have changed since it came in, and another one may have taken its place.
void UiDataContainer::removeItem(UiData* item)
{
    const QStringList ids = m_ids.values(item);
    if (ids.isEmpty())
        return;
    for (const QString& id : ids)
        m_items.remove(id);
    m_ids.remove(item);
    leave(item);
}

void UiDataContainer::setPersistentConfigMap(QMap<QString, QVariant> values)
{
    m_persistentConfig = values;
}

void UiDataContainer::slotValueUpdated()
{
    const bool areOk = m_hindrances == 0;
    const QPointer<UiDataContainer> self(this);
    if (areOk != m_allItemsOk) {
        m_allItemsOk = areOk;
        Q_EMIT allItemsOkChanged();
    }
    if (self)
        Q_EMIT valueChanged();
}
