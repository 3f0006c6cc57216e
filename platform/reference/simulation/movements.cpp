#include "movements_p.h"

#include <embedded/embeddedservice.h>

#include <QMap>

#include <algorithm>

namespace kiv::simulation {

Movements::Movements(embedded::EmbeddedService* service, const QVector<Motion>& motions, quint64 seed)
    : m_service(service)
{
    QMap<QPair<qint64, QString>, int> places;
    for (const Motion& motion : motions) {
        const auto key = qMakePair(motion.everyMs, motion.whileAction);
        if (!places.contains(key)) {
            places.insert(key, m_rhythms.size());
            m_rhythms.append({motion.everyMs, motion.whileAction, {}});
        }
        m_rhythms[places.value(key)].items.append({motion.id, Mover(motion, seed)});
    }
}

void Movements::begin(qint64 now)
{
    start(QString(), now);
}

void Movements::start(const QString& action, qint64 now)
{
    for (Rhythm& rhythm : m_rhythms) {
        if (rhythm.whileAction != action)
            continue;
        for (Item& item : rhythm.items) {
            if (rhythm.round > 0)
                item.mover.restart();
            item.lastStep = -1;
        }
        ++rhythm.round;
        rhythm.begun = now;
        rhythm.next = now;
    }
    advance(now);
}

void Movements::endAction(const QString& action)
{
    for (Rhythm& rhythm : m_rhythms) {
        if (rhythm.whileAction == action)
            rhythm.next = never;
    }
}

qint64 Movements::due() const
{
    qint64 first = never;
    for (const Rhythm& rhythm : m_rhythms)
        first = std::min(first, rhythm.next);
    return first;
}

void Movements::advance(qint64 now)
{
    for (Rhythm& rhythm : m_rhythms) {
        if (rhythm.next <= now && m_service)
            move(rhythm, now);
    }
}

void Movements::move(Rhythm& rhythm, qint64 now)
{
    const qint64 step = (now - rhythm.begun) / rhythm.everyMs;
    const int round = rhythm.round;
    rhythm.next = rhythm.begun + (step + 1) * rhythm.everyMs;
    for (Item& item : rhythm.items) {
        // An event loop in a slot may have gone further already.
        if (item.lastStep >= step)
            continue;
        item.lastStep = step;
        m_service->setValue(item.id, item.mover.valueAt(quint64(step)));
        if (!m_service || rhythm.round != round || rhythm.next == never)
            return;
    }
}

} // namespace kiv::simulation
