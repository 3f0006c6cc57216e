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
    const auto judgement = m_judgements.constFind(id);
    const KIVClientItem* const item = judgement == m_judgements.cend() ? nullptr : m_service->item(id);
    if (!item)
        return;
    const Judgement rule = *judgement;
    const QVariant value = item->getValue();
    const QPointer<Judges> self(this);
    if (rule.judgesQuality())
        m_service->setQuality(id, rule.qualityOf(value));
    if (self && rule.ready)
        m_service->setReady(id, rule.isReadyWith(value) && !(isHeldBack && isHeldBack(id)));
}

bool Judges::isReadyByValue(const QString& id, bool otherwise) const
{
    const auto judgement = m_judgements.constFind(id);
    const KIVClientItem* const item = m_service->item(id);
    const bool isJudged = item && judgement != m_judgements.cend() && judgement->ready;
    return isJudged ? judgement->isReadyWith(item->getValue()) : otherwise;
}

} // namespace kiv::simulation
