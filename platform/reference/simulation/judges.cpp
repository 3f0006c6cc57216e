#include "judges_p.h"

#include <embedded/embeddedservice.h>

#include <QPointer>

namespace kiv::simulation {

Judges::Judges(embedded::EmbeddedService* service, const QVector<Judgement>& judgements)
    : QObject(service)
    , m_service(service)
{
    for (const Judgement& judgement : judgements)
        m_judgements.insert(judgement.id, judgement);
    connect(service, &embedded::EmbeddedService::itemsChanged, this, &Judges::follow);
    follow();
}

void Judges::follow()
{
    const QPointer<Judges> self(this);
    const QStringList ids = m_judgements.keys();
    for (const QString& id : ids) {
        KIVClientItem* const item = self ? m_service->item(id) : nullptr;
        if (!item)
            continue;
        // Other items than this one may have come or gone.
        item->disconnect(this);
        connect(item, &KIVClientItem::valueChanged, this, [this, id] { judge(id); });
        judge(id);
    }
}

void Judges::judge(const QString& id)
{
    const auto rule = m_judgements.constFind(id);
    if (rule == m_judgements.cend() || !m_service->item(id))
        return;
    const bool judgesQuality = rule->judgesQuality();
    const bool judgesReadiness = bool(rule->ready);
    const Condition byValue = judged(id, Condition());
    const Condition condition = changed ? changed(id, byValue) : byValue;
    const QPointer<Judges> self(this);
    if (judgesQuality)
        m_service->setQuality(id, condition.quality);
    if (self && judgesReadiness)
        m_service->setReady(id, condition.isReady);
}

Condition Judges::judged(const QString& id, Condition condition) const
{
    const auto rule = m_judgements.constFind(id);
    const KIVClientItem* const item = rule == m_judgements.cend() ? nullptr : m_service->item(id);
    if (!item)
        return condition;
    const QVariant value = item->getValue();
    if (rule->judgesQuality())
        condition.quality = rule->qualityOf(value);
    if (rule->ready)
        condition.isReady = rule->isReadyWith(value);
    return condition;
}

} // namespace kiv::simulation
