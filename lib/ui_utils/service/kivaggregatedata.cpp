#include "service/kivaggregatedata.h"

#include "core/plainvalue_p.h"
#include "service/changewatch_p.h"
#include "service/kivdata_p.h"
#include "service/qmlaggregate.h"

#include <kiv/kivaggregateclientitem.h>

#include <QQmlEngine>
#include <QQmlPropertyMap>

class uiutils::KivAggregateDataPrivate : public KivDataPrivate
{
public:
    QPointer<QMLAggregate> map;
    /// How often the map has been filled.
    unsigned fills = 0;
};

using uiutils::KivAggregateDataPrivate;
using uiutils::KivDataPrivate;

KivAggregateData::KivAggregateData(KivAggregateClientItem* item, Manifest* manifest)
    : KivData(std::make_unique<KivAggregateDataPrivate>(), item, manifest)
    , d(static_cast<KivAggregateDataPrivate*>(KivDataPrivate::of(this)))
{
    d->map = new QMLAggregate(*this);
    QQmlEngine::setObjectOwnership(d->map, QQmlEngine::CppOwnership);
    updateQmlMapFromItem();
}

KivAggregateData::~KivAggregateData()
{
    if (d->map)
        d->map->release();
}

KivAggregateClientItem* KivAggregateData::aggregateItem() const
{
    return qobject_cast<KivAggregateClientItem*>(item());
}

QVariant KivAggregateData::getValue() const
{
    return QVariant::fromValue<QQmlPropertyMap*>(d->map);
}

void KivAggregateData::updateQmlMapFromItem()
{
    const KivAggregateClientItem* source = aggregateItem();
    if (!source)
        return;
    const KivAggregate aggregate = source->getAggregate();
    const QPointer<KivAggregateData> self(this);
    const QPointer<QMLAggregate> map = d->map;
    const unsigned fill = ++d->fills;
    const QList<QByteArray> names = aggregate.getPropertyNames();
    for (const QByteArray& name : names) {
        // A slot on a key may delete the wrapper, and the map with it, or make the service report again.
        if (!self || fill != d->fills)
            return;
        const QString key = QString::fromUtf8(name);
        const QVariant value = aggregate.getPropertyVariant(name);
        // The map treats numbers that hardly differ as equal.
        if (map->value(key) == value && !uiutils::isSameValue(map->value(key), value))
            map->insert(key, QVariant());
        if (self && fill == d->fills)
            map->insert(key, value);
    }
}

void KivAggregateData::updateAggregateProperty(QString const& key, QVariant value)
{
    const KivAggregateClientItem* source = aggregateItem();
    const QPointer<KivAggregateData> self(this);
    if (source && getClient() && !isReadOnly()) {
        KivAggregate aggregate = source->getAggregate();
        if (!aggregate.setPropertyFromVariant(key.toUtf8(), uiutils::plainValue(value)))
            reject(tr("%1 has no member %2.").arg(getLabel().isEmpty() ? getName() : getLabel(), key));
        else if (!writeValue(aggregate.toVariant()))
            return;
    }
    if (self)
        announce({&KivData::valueChanged});
}

void KivAggregateData::slotValueChanged()
{
    settleReport();
    if (const KivAggregateClientItem* source = aggregateItem())
        holdReport(source->getAggregate().toVariant());
    // Bindings are notified of each member while the map is filled, and may write at that moment.
    announce({static_cast<void (KivData::*)()>(&KivAggregateData::updateQmlMapFromItem), &KivData::valueChanged});
    uiutils::ChangeWatch::flush();
}
