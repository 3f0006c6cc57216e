#include "embeddedservice.h"

#include "embeddeditem_p.h"

namespace kiv::embedded {

EmbeddedService::EmbeddedService(const ServiceDescription& description, QObject* parent)
    : QObject(parent)
    , m_name(description.service)
{
    for (const ItemDescription& item : description.items)
        m_items.insert(item.id, new EmbeddedItem(item, this));
}

EmbeddedService::~EmbeddedService() = default;

QStringList EmbeddedService::itemIds(const QString& prefix) const
{
    QStringList ids;
    for (auto it = m_items.lowerBound(prefix); it != m_items.cend() && it.key().startsWith(prefix); ++it)
        ids += it.key();
    return ids;
}

KIVClientItem* EmbeddedService::item(const QString& id) const
{
    return m_items.value(id);
}

bool EmbeddedService::setValue(const QString& id, const QVariant& value)
{
    EmbeddedItem* item = m_items.value(id);
    if (!item)
        return false;
    item->setValue(value);
    return true;
}

bool EmbeddedService::setAttribute(const QString& id, const QString& name, const QVariant& value)
{
    EmbeddedItem* item = m_items.value(id);
    if (!item)
        return false;
    item->setAttribute(name, value);
    return true;
}

} // namespace kiv::embedded
