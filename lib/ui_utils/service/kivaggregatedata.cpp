#include "service/kivaggregatedata.h"

#include "service/qmlaggregate.h"

#include <kiv/kivaggregateclientitem.h>

#include <QQmlEngine>
#include <QQmlPropertyMap>

KivAggregateData::KivAggregateData(KivAggregateClientItem* item, Manifest* manifest)
    : KivData(item, manifest)
    , m_map(new QMLAggregate(*this))
{
    QQmlEngine::setObjectOwnership(m_map, QQmlEngine::CppOwnership);
    updateQmlMapFromItem();
}

KivAggregateData::~KivAggregateData()
{
    if (m_map)
        m_map->release();
}

KivAggregateClientItem* KivAggregateData::aggregateItem() const
{
    return qobject_cast<KivAggregateClientItem*>(item());
}

QVariant KivAggregateData::getValue() const
{
    return QVariant::fromValue<QQmlPropertyMap*>(m_map);
}

void KivAggregateData::updateQmlMapFromItem()
{
    const KivAggregateClientItem* source = aggregateItem();
    if (!source)
        return;
    const KivAggregate aggregate = source->getAggregate();
    const QPointer<QMLAggregate> map = m_map;
    const QList<QByteArray> names = aggregate.getPropertyNames();
    for (const QByteArray& name : names) {
        // A slot on the keys may delete the wrapper, and the map with it.
        if (map)
            map->insert(QString::fromUtf8(name), aggregate.getPropertyVariant(name));
    }
}

void KivAggregateData::updateAggregateProperty(QString const& key, QVariant value)
{
    const KivAggregateClientItem* source = aggregateItem();
    const QPointer<KivAggregateData> self(this);
    if (source && getClient() && !isReadOnly()) {
        KivAggregate aggregate = source->getAggregate();
        if (aggregate.setPropertyFromVariant(key.toUtf8(), value))
            writeValue(aggregate.toVariant());
        else
            refuse(tr("%1 does not take this value: %2").arg(key, value.toString().left(100)));
    }
    if (self)
        Q_EMIT valueChanged();
}

void KivAggregateData::slotValueChanged()
{
    settleReport();
    const QPointer<KivAggregateData> self(this);
    updateQmlMapFromItem();
    if (self)
        Q_EMIT valueChanged();
}
