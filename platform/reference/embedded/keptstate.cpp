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

/// What a file lets happen to its service passes with it: otherwise the service would stay away, or an item bad, when
/// the file does not say so any more.
bool isEventful(const QJsonObject& file)
{
    return file.contains(QLatin1String("happens"));
}

/// Whether the quality follows the value by itself.
bool isJudged(const QJsonObject& item)
{
    return item.contains(QLatin1String("judged"));
}

bool isReadyByValue(const QJsonObject& item)
{
    return item.value(QLatin1String("ready")).isObject();
}

} // namespace

KeptState::KeptState(const EmbeddedService& service, const QJsonObject& before, const QJsonObject& now)
{
    const bool keepsConditions = !isEventful(before) && !isEventful(now);
    if (keepsConditions)
        m_isReachable = service.isReachable();
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
        if (keepsConditions && isSame(item, old, "quality") && !isJudged(item) && !isJudged(old))
            kept.quality = KIVClientItem::Quality(running->getQualityCode());
        if (keepsConditions && isSame(item, old, "ready") && !isReadyByValue(item))
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
    if (alive && m_isReachable)
        alive->setReachable(*m_isReachable);
}

} // namespace kiv::embedded
