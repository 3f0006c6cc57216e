#include "pendingitem.h"

#include <kiv/kivclientinterface.h>
#include <kiv/kivclientitem.h>

namespace uiutils::demo {

void PendingItem::setItem(KivData* item)
{
    if (item == m_item)
        return;
    if (m_item)
        m_item->disconnect(this);
    m_item = item;
    m_served.clear();
    setRefusal({});
    if (item) {
        connect(item, &KivData::valueChanged, this, &PendingItem::hear);
        connect(item, &KivData::errorChanged, this, [this](const QString&, const QString& words) {
            setRefusal(words);
            Q_EMIT refused(words);
        });
    }
    compare();
    Q_EMIT itemChanged();
}

void PendingItem::enter(const QVariant& value)
{
    if (!m_item)
        return;
    m_isEntering = true;
    setRefusal({});
    // An item reverts only its last write; each write must be the first, so that it reverts to the service's value.
    m_item->revert();
    if (value != m_served) {
        Q_EMIT edited();
        m_item->setValue(value);
    }
    m_isEntering = false;
    compare();
}

void PendingItem::hear()
{
    if (m_isEntering)
        return;
    compare();
    Q_EMIT reported();
}

void PendingItem::compare()
{
    const KIVClientInterface* const client = m_item ? m_item->getClient() : nullptr;
    const KIVClientItem* const source = client ? client->getItem(m_item->getId()) : nullptr;
    const QVariant served = source ? source->getValue() : m_served;
    if (served != m_served) {
        m_served = served;
        Q_EMIT servedChanged();
    }
    const bool isPending = m_item && m_served.isValid() && m_item->getValue() != m_served;
    if (isPending == m_isPending)
        return;
    m_isPending = isPending;
    if (!isPending)
        setRefusal({});
    Q_EMIT pendingChanged();
}

void PendingItem::setRefusal(const QString& words)
{
    if (words == m_refusal)
        return;
    m_refusal = words;
    Q_EMIT refusalChanged();
}

} // namespace uiutils::demo
