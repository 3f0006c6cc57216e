#include "happenings_p.h"

#include "assignments_p.h"

#include <embedded/embeddedservice.h>

#include <algorithm>

namespace kiv::simulation {

Stand standOf(const Happening& happening, qint64 now)
{
    if (now < happening.afterMs)
        return {0, false, happening.afterMs};
    const qint64 before = happening.everyMs > 0 ? (now - happening.afterMs) / happening.everyMs : 0;
    const qint64 begun = happening.afterMs + before * happening.everyMs;
    const qint64 again = happening.everyMs > 0 ? begun + happening.everyMs : never;
    if (happening.forMs == 0)
        return {before + 1, true, again};
    const bool isOn = now < begun + happening.forMs;
    return {before + 1, isOn, isOn ? begun + happening.forMs : again};
}

Happenings::Happenings(embedded::EmbeddedService* service, const Plan& plan)
    : m_service(service)
    , m_happenings(plan.happenings)
    , m_delayMs(plan.delayMs)
    , m_seed(plan.seed)
    , m_stands(plan.happenings.size())
{
    for (int i = 0; i < m_stands.size(); ++i)
        m_stands[i].next = m_happenings.at(i).afterMs;
}

qint64 Happenings::due() const
{
    qint64 first = never;
    for (const Stand& stand : m_stands)
        first = std::min(first, stand.next);
    return first;
}

void Happenings::advance(qint64 now)
{
    for (int i = 0; i < m_stands.size() && m_service; ++i) {
        const Stand old = m_stands.at(i);
        if (old.next > now)
            continue;
        const Stand stand = standOf(m_happenings.at(i), now);
        m_stands[i] = stand;
        if (stand.beginnings != old.beginnings && stand.isOn)
            begin(m_happenings.at(i), quint64(stand.beginnings));
        if (stand.isOn != old.isOn && m_service)
            turn(m_happenings.at(i));
    }
}

/// What is done once, each time.
void Happenings::begin(const Happening& happening, quint64 time)
{
    quint64 drawn = time * 1000;
    const QPointer<embedded::EmbeddedService> alive(m_service);
    assign(alive, happening.set, QString(), RandomSequence(m_seed, QStringLiteral("happens")), &drawn);
    if (alive && !happening.error.isEmpty())
        alive->reportError(happening.error);
}

/// What lasts.
void Happenings::turn(const Happening& happening)
{
    for (auto it = happening.items.cbegin(); it != happening.items.cend(); ++it)
        turnItem(it.key(), happening);
    if (happening.slowMs && m_service) {
        int delay = m_delayMs;
        for (int i = 0; i < m_stands.size(); ++i)
            delay = m_stands.at(i).isOn ? std::max(delay, m_happenings.at(i).slowMs.value_or(0)) : delay;
        m_service->setDelay(delay);
    }
    if (happening.isVanishing && m_service)
        turnReachable();
}

/// Only what it concerns: the rest may have been set by hand.
void Happenings::turnItem(const QString& id, const Happening& happening)
{
    const QPointer<embedded::EmbeddedService> alive(m_service);
    const Condition inFile = happening.items.value(id);
    const Condition now = alive ? changed(id, judged ? judged(id, inFile) : inFile) : inFile;
    if (alive && !happening.refusal.isEmpty())
        alive->setRefusal(id, now.refusal);
    if (alive && happening.isNotReady)
        alive->setReady(id, now.isReady);
    if (alive && happening.isNotApplicable)
        alive->setApplicable(id, now.isApplicable);
    if (alive && happening.quality)
        alive->setQuality(id, now.quality);
}

void Happenings::turnReachable()
{
    bool isAway = false;
    for (int i = 0; i < m_stands.size(); ++i)
        isAway = isAway || (m_stands.at(i).isOn && m_happenings.at(i).isVanishing);
    if (isAway && vanishing)
        vanishing();
    if (m_service)
        m_service->setReachable(!isAway);
}

QString Happenings::refusalOf(const QString& id) const
{
    return changed(id, Condition()).refusal;
}

/// Of several the last one in the file counts.
Condition Happenings::changed(const QString& id, Condition condition) const
{
    for (int i = 0; i < m_stands.size(); ++i) {
        const Happening& happening = m_happenings.at(i);
        if (!m_stands.at(i).isOn || !happening.items.contains(id))
            continue;
        condition.isReady = condition.isReady && !happening.isNotReady;
        condition.isApplicable = condition.isApplicable && !happening.isNotApplicable;
        condition.quality = happening.quality.value_or(condition.quality);
        condition.refusal = happening.refusal.isEmpty() ? condition.refusal : happening.refusal;
    }
    return condition;
}

} // namespace kiv::simulation
