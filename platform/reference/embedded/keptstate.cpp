#include "keptstate_p.h"

#include "embeddedservice.h"

#include <QHash>
#include <QJsonArray>
#include <QPointer>

namespace kiv::embedded {

namespace {

QHash<QString, QJsonObject> itemsOf(const QJsonObject& file)
{
    QHash<QString, QJsonObject> items;
    const QJsonArray array = file.value(QLatin1String("items")).toArray();
    for (const QJsonValue& item : array)
        items.insert(item.toObject().value(QLatin1String("id")).toString(), item.toObject());
    return items;
}

bool isSame(const QJsonObject& one, const QJsonObject& other, const char* key)
{
    return one.value(QLatin1String(key)) == other.value(QLatin1String(key));
}

} // namespace

KeptState::KeptState(const EmbeddedService& service, const QJsonObject& before, const QJsonObject& now)
    : m_isReachable(service.isReachable())
{
    const QHash<QString, QJsonObject> earlier = itemsOf(before);
    const QJsonArray items = now.value(QLatin1String("items")).toArray();
    for (const QJsonValue& value : items) {
        const QJsonObject item = value.toObject();
        const QString id = item.value(QLatin1String("id")).toString();
        const QJsonObject old = earlier.value(id);
        const KIVClientItem* running = service.item(id);
        if (!running || !isSame(item, old, "type"))
            continue;
        Item kept {id, {}, {}, {}};
        // A stored setting would otherwise hide what has just been written into the file.
        kept.value = isSame(item, old, "value") ? running->getValue() : item.value(QLatin1String("value")).toVariant();
        if (isSame(item, old, "quality"))
            kept.quality = KIVClientItem::Quality(running->getQualityCode());
        if (isSame(item, old, "ready"))
            kept.isReady = running->isReady();
        m_items += kept;
    }
}

void KeptState::giveBackTo(EmbeddedService* service) const
{
    const QPointer<EmbeddedService> alive(service);
    for (const Item& item : m_items) {
        if (alive && item.value)
            alive->setValue(item.id, *item.value);
        if (alive && item.quality)
            alive->setQuality(item.id, *item.quality);
        if (alive && item.isReady)
            alive->setReady(item.id, *item.isReady);
    }
    if (alive)
        alive->setReachable(m_isReachable);
}

} // namespace kiv::embedded
