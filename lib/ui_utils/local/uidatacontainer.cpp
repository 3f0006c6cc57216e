#include "local/uidatacontainer.h"

#include "local/uidata.h"

#include <QPointer>

#include <algorithm>

UiDataContainer* UiDataContainer::s_dcInstance = nullptr;

UiDataContainer::UiDataContainer(QObject* parent)
    : QObject(parent)
{
}

UiDataContainer::~UiDataContainer()
{
    // The children go after this and would look for their entries.
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
    m_items.insert(id, item);
    const QPointer<UiData> guard(item);
    const auto stored = m_persistentConfig.constFind(id);
    if (item->isPersistent() && stored != m_persistentConfig.cend() && item->getValue() != *stored)
        item->setValue(QVariant(*stored));
    if (!guard)
        return;
    connect(item, &KivData::valueChanged, this, &UiDataContainer::slotValueUpdated, Qt::UniqueConnection);
    connect(item, &QObject::destroyed, this, &UiDataContainer::forget, Qt::UniqueConnection);
    slotValueUpdated();
}

void UiDataContainer::removeItem(UiData* item)
{
    forget(item);
}

/// By its address, because an item's id may have changed since it came in, and another one may have taken its place.
void UiDataContainer::forget(const QObject* item)
{
    for (auto it = m_items.begin(); it != m_items.end();) {
        if (static_cast<const QObject*>(*it) == item)
            it = m_items.erase(it);
        else
            ++it;
    }
}

void UiDataContainer::setPersistentConfigMap(QMap<QString, QVariant> values)
{
    m_persistentConfig = values;
}

void UiDataContainer::slotValueUpdated()
{
    const bool areOk = std::none_of(m_items.cbegin(), m_items.cend(),
            [](const UiData* item) { return item->isMandatory() && !item->isValueOk(); });
    const QPointer<UiDataContainer> self(this);
    if (areOk != m_allItemsOk) {
        m_allItemsOk = areOk;
        Q_EMIT allItemsOkChanged();
    }
    if (self)
        Q_EMIT valueChanged();
}
