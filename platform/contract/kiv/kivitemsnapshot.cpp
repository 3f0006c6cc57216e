#include <kiv/kivclientinterface.h>
#include <kiv/kivclientitem.h>
#include <kiv/kivitemsnapshot.h>

#include <algorithm>

KIVItemSnapshot::KIVItemSnapshot(const KIVClientInterface* client, const QString& prefix)
{
    if (!client)
        return;
    const QStringList ids = client->getItemIds(prefix);
    m_items.reserve(ids.size());
    for (const QString& id : ids) {
        if (const KIVClientItem* item = client->getItem(id))
            m_items.append({id, item->getName(), item->getLabel(), item->getValue(), item->getValueString()});
    }
}

void KIVItemSnapshot::labelSort()
{
    std::sort(m_items.begin(), m_items.end(), [](const Item& a, const Item& b) {
        const int order = QString::localeAwareCompare(a.label, b.label);
        return order != 0 ? order < 0 : a.id < b.id;
    });
}
